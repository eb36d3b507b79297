#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "server/market/market.h"
#include "server/market/platform_files.h"

namespace jogeon::market {
namespace {

constexpr mode_t kMode = 0644;

std::string Complaint(const std::filesystem::path& path, const char* what, int error) {
    return path.string() + ": " + what + ": " + std::strerror(error);
}

// A file descriptor that is closed when the block is left.
class Descriptor {
public:
    explicit Descriptor(int file) : file_(file) {}
    ~Descriptor() {
        if (file_ >= 0) close(file_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Get() const { return file_; }

private:
    int file_;
};

std::filesystem::path FolderOf(const std::filesystem::path& path) {
    return path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
}

}  // namespace

MappedFile::MappedFile(const std::filesystem::path& path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.Get() < 0) throw MarketError(Complaint(path, "can't be opened", errno));
    struct stat info {};
    if (fstat(file.Get(), &info) != 0) throw MarketError(Complaint(path, "can't be read", errno));
    if (!S_ISREG(info.st_mode)) throw MarketError(path.string() + ": is not a file");
    size_ = static_cast<std::size_t>(info.st_size);
    if (size_ == 0) return;
    void* const mapped = mmap(nullptr, size_, PROT_READ, MAP_PRIVATE, file.Get(), 0);
    if (mapped == MAP_FAILED) throw MarketError(Complaint(path, "can't be mapped", errno));
    data_ = static_cast<const std::byte*>(mapped);
}

MappedFile::~MappedFile() {
    if (data_) munmap(const_cast<std::byte*>(data_), size_);
}

ReplacingFile::ReplacingFile(std::filesystem::path path) : path_(std::move(path)) {
    Open();
}

ReplacingFile::~ReplacingFile() {
    if (file_ >= 0) close(file_);
    if (!temporary_.empty()) unlink(temporary_.c_str());
}

void ReplacingFile::Fail(const char* what) const {
    throw MarketError(Complaint(path_, what, errno));
}

void ReplacingFile::Open() {
    if (std::filesystem::is_directory(path_)) throw MarketError(path_.string() + ": is a folder");
    // A device or a pipe would be renamed over, not written to.
    if (std::filesystem::exists(path_) && !std::filesystem::is_regular_file(path_)) {
        throw MarketError(path_.string() + ": is no ordinary file");
    }
#ifdef O_TMPFILE
    file_ = open(FolderOf(path_).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kMode);
    if (file_ >= 0) return;
#endif
    const std::string name = path_.string() + "." + std::to_string(getpid()) + ".new";
    file_ = open(name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kMode);
    if (file_ < 0) Fail("can't be written");
    temporary_ = name;
}

void ReplacingFile::Append(std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) Fail("can't be written");
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
}

// A link can't replace a file, so that the nameless file gets a name of its own first.
void ReplacingFile::GiveName() {
    const std::string name = path_.string() + "." + std::to_string(getpid()) + ".new";
    const std::string self = "/proc/self/fd/" + std::to_string(file_);
    if (linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) != 0)
        Fail("can't be named");
    temporary_ = name;
}

void ReplacingFile::Commit() {
    if (fsync(file_) != 0) Fail("can't be written");
    if (temporary_.empty()) GiveName();
    if (rename(temporary_.c_str(), path_.c_str()) != 0) Fail("can't be replaced");
    temporary_.clear();
    // The name is safe once the folder is; a file system that can't sync a folder does it in its own time.
    const Descriptor folder(open(FolderOf(path_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Get() >= 0) static_cast<void>(fsync(folder.Get()));
}

}  // namespace jogeon::market
