// The users of this computer whose saved sets can be brought in, found by their files.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

struct ImportId {
    std::string id;         // the file's name before "_SaveIndex.dat"
    std::string lastSaved;  // "2025-4-30 09:05:00", local time; empty if it can't be told
    std::filesystem::path file;
};

// The files in `folder` that belong to another id than `currentId`, by id. None if it can't be read.
std::vector<ImportId> ListImportIds(const std::filesystem::path& folder, std::string_view currentId);

// The file's last write in the form of ImportId.
std::string LastSaved(const std::filesystem::path& file);

}  // namespace jogeon
