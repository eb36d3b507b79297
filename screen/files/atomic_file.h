// Replaces a whole file at once: a full disk or a killed process leaves the old file or the new one.
//
// Relies on the standard library and the platform's flush of one file. Everything of the module that writes
// a file of the user's goes through here, so that a test can make it fail at each of its steps.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

namespace jogeon {

// Writes `bytes` to a new file beside `path`, flushes it to the disk and renames it to `path`. A link is
// followed; the permissions of a file that is replaced stay. False if any step fails, a file that may not be
// written included: what stood at `path` is untouched then, and nothing is left beside it.
bool WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes);

enum class FileStep { Open, Write, Flush, Rename };

// For tests: while it lives, this thread's writes fail at one step; a failing Write lets the first `bytes`
// bytes through.
class FileFault {
public:
    explicit FileFault(FileStep step, std::size_t bytes = 0);
    ~FileFault();
    FileFault(const FileFault&) = delete;
    FileFault& operator=(const FileFault&) = delete;
};

}  // namespace jogeon
