// The file that mirrors a user's saved conditions on this computer, and the firm's read-only one.
//
// Both are sections and keys (CIniMemFile), CP949. The user file begins with section "Version", key "ver";
// files that have the two names the other way round are read, and written back right. Reading never writes.
// A missing or damaged file gives no sets and no message.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screen/condition/catalogue.h"
#include "screen/condition/saved_index_info.h"

class CIniMemFile;

namespace jogeon {

using SavedSets = std::vector<std::shared_ptr<CSavedIndexInfo>>;

// Where the files lie under the home folder.
std::filesystem::path SavedConditionPath(const std::filesystem::path& home, std::string_view userId);
std::filesystem::path VendorConditionPath(const std::filesystem::path& home);

inline constexpr const char* kNoVersion = "000.000";  // of a file that has none

struct SavedConditionFile {
    std::string version = kNoVersion;
    SavedSets sets;  // in file order
};

// All sets of a user file. Conditions on indicators that the catalogue doesn't have are dropped, and their
// letters leave the expression.
SavedConditionFile LoadSavedConditions(const std::filesystem::path& file, const Catalogue& catalogue);

// The firm's sets, each with m_bVendorSet 1; they have a name, an expression and conditions only.
SavedSets LoadVendorConditions(const std::filesystem::path& file, const Catalogue& catalogue);

// The first set of a user file with this number, read afresh; null if there is none.
std::shared_ptr<CSavedIndexInfo> OpenSavedCondition(const std::filesystem::path& file, std::string_view key,
                                                    const Catalogue& catalogue);

// A set as a list shows it.
struct SavedSetName {
    std::string number;
    std::string name;
};

// The sets of a user file, in file order.
std::vector<SavedSetName> ListSavedSets(const std::filesystem::path& file);

// Puts the set into its section of `file`, which keeps key order; nothing reaches the disk. `keepSection`
// false removes what the section held before.
void WriteCondition(const CSavedIndexInfo& info, bool keepSection, CIniMemFile& file);

// Writes one set into the user file on disk and stamps it with `version`. False if it can't be saved.
bool WriteCondition(const CSavedIndexInfo& info, bool keepSection, const std::filesystem::path& file,
                    std::string_view version);

// Removes the section of the set with this number from the user file and stamps it with `version`.
bool DeleteConditionFromFile(std::string_view key, const std::filesystem::path& file,
                             std::string_view version);

// Makes `sets` the whole of the user file on disk, with `version`. False if it can't be saved.
bool RewriteConditions(const SavedSets& sets, const std::filesystem::path& file, std::string_view version);

// Gives the sets of the user file on disk the numbers "00", "01"... in the order of their present `numbers`,
// which are all that there are. False if it can't be saved.
bool RenumberConditions(const std::vector<std::string>& numbers, const std::filesystem::path& file,
                        std::string_view version);

// The version of a user file; kNoVersion where it has none.
std::string ReadVersion(const std::filesystem::path& file);

// Writes the version where it belongs: section "Version" stands first, and a section of the other form goes.
void StampVersion(CIniMemFile& file, std::string_view version);

}  // namespace jogeon
