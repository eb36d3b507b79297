// The user's saved-condition file as the mirror of the server's store, and the version that both stand at.
//
// Files are replaced whole or not at all. What can't be written stays on the server, so the file never claims
// a version whose sets it doesn't hold: at the next start the server then sends them again.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "screen/saved/saved_condition_file.h"

namespace jogeon {

class SavedMirror {
public:
    // Names the file of a user and takes the version from it.
    void Open(std::filesystem::path file, std::string userId);

    const std::filesystem::path& File() const { return file_; }
    const std::string& UserId() const { return userId_; }

    // The version of what the screen knows, `fileVersion` of every request.
    const std::string& Version() const { return fileVersion_; }
    void SetVersion(std::string_view version);  // the file stays as it is

    // Whether the file holds what Version() stands for. It doesn't after a write that failed.
    bool InStep() const;

    // The sets that the file lists now.
    std::vector<SavedSetName> Sets() const { return ListSavedSets(file_); }

    // After one set has changed on the server: writes that set, or removes it. The new version counts from
    // now on in any case. False if the file can't be written.
    bool Put(const CSavedIndexInfo& set, bool keepSection, std::string_view version);
    bool Remove(std::string_view number, std::string_view version);

    // After all have changed: makes the file anew, the old one with its sets staying beside it as ".bak"; or
    // renumbers its sets in the order of `numbers`. False if the file can't be written; file and version are
    // the old ones then.
    bool Rewrite(const SavedSets& sets, std::string_view version);
    bool Renumber(const std::vector<std::string>& numbers, std::string_view version);

private:
    void KeepCopy() const;
    std::string VersionToStamp(std::string_view version) const;

    std::filesystem::path file_;
    std::string userId_;
    std::string fileVersion_ = kNoVersion;
};

}  // namespace jogeon
