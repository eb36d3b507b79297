#include "screen/files/atomic_file.h"

#include <cstdio>
#include <memory>
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

struct FileCloser {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

File Open(const fs::path& path, const char* mode) {
#if defined(_WIN32)
    return File(
        _wfopen(path.c_str(), std::wstring(mode, mode + std::char_traits<char>::length(mode)).c_str()));
#else
    return File(std::fopen(path.c_str(), mode));
#endif
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

bool Write(std::FILE* file, std::string_view bytes) {
    const bool fails = Fails(FileStep::Write);
    if (fails) bytes = bytes.substr(0, fault->bytes);
    return std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && !fails;
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

bool MayReplace(const fs::path& target) {
    std::error_code error;
    return !fs::exists(target, error) || (fs::is_regular_file(target, error) && Open(target, "r+b"));
}

bool WriteNewFile(const fs::path& path, const fs::path& target, std::string_view bytes) {
    File file = Open(path, "wbx");
    if (!file) return false;
    if (!Write(file.get(), bytes) || !FlushToDisk(file.get())) return false;
    if (std::fclose(file.release()) != 0) return false;
    std::error_code error;
    const fs::file_status old = fs::status(target, error);
    if (fs::exists(old)) fs::permissions(path, old.permissions(), error);
    return true;
}

}  // namespace

bool WriteFileAtomically(const fs::path& path, std::string_view bytes) {
    const fs::path target = Target(path);
    if (Fails(FileStep::Open) || !MayReplace(target)) return false;
    const fs::path beside = Beside(target);
    std::error_code error;
    if (WriteNewFile(beside, target, bytes) && !Fails(FileStep::Rename)) {
        fs::rename(beside, target, error);
        if (!error) {
            FlushFolder(target.parent_path());
            return true;
        }
    }
    fs::remove(beside, error);
    return false;
}

FileFault::FileFault(FileStep step, std::size_t bytes) {
    fault = Fault{step, bytes};
}
FileFault::~FileFault() {
    fault.reset();
}

}  // namespace jogeon
