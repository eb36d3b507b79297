#include "screen/files/atomic_file.h"

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <system_error>

#if defined(_WIN32)
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace jogeon {
namespace {

namespace fs = std::filesystem;

struct Fault {
    FileStep step;
    std::size_t bytes;
};
thread_local std::optional<Fault> fault;

bool Fails(FileStep step) {
    return fault && fault->step == step;
}

bool FlushToDisk(std::FILE* file) {
    if (std::fflush(file) != 0 || Fails(FileStep::Flush)) return false;
#if defined(_WIN32)
    return _commit(_fileno(file)) == 0;
#else
    return fsync(fileno(file)) == 0;
#endif
}

// Makes the rename itself last. A file system that can't do this has renamed all the same.
void FlushFolder(const fs::path& folder) {
#if !defined(_WIN32)
    const int handle = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    static_cast<void>(fsync(handle));
    static_cast<void>(close(handle));
#else
    static_cast<void>(folder);
#endif
}

// The file that `path` means: a link's target, so that the link stays one.
fs::path Target(const fs::path& path) {
    std::error_code error;
    if (!fs::is_symlink(path, error)) return path;
    const fs::path target = fs::weakly_canonical(path, error);
    return error ? path : target;
}

// A name that no other writer of the same file uses.
fs::path Beside(const fs::path& target) {
    fs::path beside = target;
    beside += ".";
    beside += std::to_string(std::random_device()());
    beside += ".new";
    return beside;
}

}  // namespace

AtomicFile::File AtomicFile::OpenFile(const fs::path& path, const char* mode) {
#if defined(_WIN32)
    return File(
        _wfopen(path.c_str(), std::wstring(mode, mode + std::char_traits<char>::length(mode)).c_str()));
#else
    return File(std::fopen(path.c_str(), mode));
#endif
}

bool AtomicFile::MayReplace(const fs::path& target) {
    std::error_code error;
    return !fs::exists(target, error) || (fs::is_regular_file(target, error) && OpenFile(target, "r+b"));
}

bool AtomicFile::Open(const fs::path& path) {
    Discard();
    target_ = Target(path);
    if (Fails(FileStep::Open) || !MayReplace(target_)) return false;
    beside_ = Beside(target_);
    file_ = OpenFile(beside_, "wbx");
    written_ = 0;
    failed_ = false;
    return IsOpen();
}

void AtomicFile::Write(std::string_view bytes) {
    if (!IsOpen() || failed_) return;
    const std::size_t room =
        Fails(FileStep::Write) ? fault->bytes - std::min(written_, fault->bytes) : bytes.size();
    const std::string_view allowed = bytes.substr(0, room);
    const std::size_t put = std::fwrite(allowed.data(), 1, allowed.size(), file_.get());
    written_ += put;
    failed_ = put < bytes.size();
}

// Everything that Commit does before the rename.
bool AtomicFile::Finish() {
    if (!IsOpen() || failed_ || !FlushToDisk(file_.get())) return false;
    if (std::fclose(file_.release()) != 0) return false;
    std::error_code error;
    const fs::file_status old = fs::status(target_, error);
    if (fs::exists(old)) fs::permissions(beside_, old.permissions(), error);
    return !Fails(FileStep::Rename);
}

bool AtomicFile::Commit() {
    std::error_code error;
    const bool finished = Finish();
    if (finished) fs::rename(beside_, target_, error);
    const bool renamed = finished && !error;
    if (renamed) {
        beside_.clear();
        FlushFolder(target_.parent_path());
    }
    Discard();
    return renamed;
}

void AtomicFile::Discard() {
    file_.reset();
    std::error_code error;
    if (!beside_.empty()) fs::remove(beside_, error);
    beside_.clear();
}

bool WriteFileAtomically(const fs::path& path, std::string_view bytes) {
    AtomicFile file;
    if (!file.Open(path)) return false;
    file.Write(bytes);
    return file.Commit();
}

FileFault::FileFault(FileStep step, std::size_t bytes) {
    fault = Fault{step, bytes};
}
FileFault::~FileFault() {
    fault.reset();
}

}  // namespace jogeon
