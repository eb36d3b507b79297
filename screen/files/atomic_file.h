// Replaces a whole file at once: a full disk or a killed process leaves the old file or the new one.
//
// Relies on the standard library and the platform's flush of one file. Everything of the module that writes
// a file of the user's goes through here, so that a test can make it fail at each of its steps.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>

namespace jogeon {

// A file that is written piece by piece beside the one it will replace. Without a Commit it leaves nothing
// behind.
class AtomicFile {
public:
    AtomicFile() = default;
    ~AtomicFile() { Discard(); }
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    // Begins a file that is to stand at `path`; one that was begun before is discarded. False if no file may
    // be written there. A link is followed.
    bool Open(const std::filesystem::path& path);
    bool IsOpen() const { return file_ != nullptr; }

    // Appends; ignored while nothing is open. A failure is told by Commit.
    void Write(std::string_view bytes);

    // Flushes the file to the disk and renames it to its path, with the permissions of the one it replaces.
    // False if anything since Open has failed: what stood at the path is untouched then. Closed either way.
    bool Commit();

    void Discard();

private:
    struct Closer {
        void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
    };
    using File = std::unique_ptr<std::FILE, Closer>;

    static File OpenFile(const std::filesystem::path& path, const char* mode);
    static bool MayReplace(const std::filesystem::path& target);
    bool Finish();

    std::filesystem::path target_;
    std::filesystem::path beside_;
    File file_;
    std::size_t written_ = 0;
    bool failed_ = false;
};

// Writes `bytes` to a new file beside `path`, flushes it to the disk and renames it to `path`. A link is
// followed; the permissions of a file that is replaced stay. False if any step fails, a file that may not be
// written included: what stood at `path` is untouched then, and nothing is left beside it.
bool WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes);

enum class FileStep { Open, Write, Flush, Rename };

// For tests: while it lives, this thread's writes fail at one step; a failing Write lets the first `bytes`
// bytes of a file through.
class FileFault {
public:
    explicit FileFault(FileStep step, std::size_t bytes = 0);
    ~FileFault();
    FileFault(const FileFault&) = delete;
    FileFault& operator=(const FileFault&) = delete;
};

}  // namespace jogeon
