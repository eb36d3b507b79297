#include "screen/saved/saved_mirror.h"

#include <system_error>
#include <utility>

#include "screen/text/bytes.h"

namespace jogeon {

void SavedMirror::Open(std::filesystem::path file, std::string userId) {
    file_ = std::move(file);
    userId_ = std::move(userId);
    SetVersion(ReadVersion(file_));
}

void SavedMirror::SetVersion(std::string_view version) {
    fileVersion_ = TrimRight(version);
}

bool SavedMirror::InStep() const {
    return ReadVersion(file_) == fileVersion_;
}

bool SavedMirror::Put(const CSavedIndexInfo& set, bool keepSection, std::string_view version) {
    const bool written = WriteCondition(set, keepSection, file_, VersionToStamp(version));
    SetVersion(version);
    return written;
}

bool SavedMirror::Remove(std::string_view number, std::string_view version) {
    const bool written = DeleteConditionFromFile(number, file_, VersionToStamp(version));
    SetVersion(version);
    return written;
}

bool SavedMirror::Rewrite(const SavedSets& sets, std::string_view version) {
    KeepCopy();
    if (!RewriteConditions(sets, file_, version)) return false;
    SetVersion(version);
    return true;
}

bool SavedMirror::Renumber(const std::vector<std::string>& numbers, std::string_view version) {
    if (!RenumberConditions(numbers, file_, version)) return false;
    SetVersion(version);
    return true;
}

// A server with a new or a lost store sends fewer sets than the file has: they are not gone for good.
void SavedMirror::KeepCopy() const {
    if (Sets().empty()) return;
    std::filesystem::path copy = file_;
    copy += ".bak";
    std::error_code failed;
    std::filesystem::copy_file(file_, copy, std::filesystem::copy_options::overwrite_existing, failed);
}

// A file that has fallen behind, because an earlier write failed or someone else changed it, stays behind:
// with the new version on it, it would pass for complete.
std::string SavedMirror::VersionToStamp(std::string_view version) const {
    return InStep() ? std::string(TrimRight(version)) : ReadVersion(file_);
}

}  // namespace jogeon
