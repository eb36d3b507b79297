// What the market file needs of the operating system: a file mapped for reading, and a file that takes the
// place of another in one step. The only part of the market that isn't portable is behind this header.
//
// All functions throw MarketError with one line that names the file and says what went wrong.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>

namespace jogeon::market {

// A whole file, mapped into memory as it is, for as long as this lives.
class MappedFile {
public:
    explicit MappedFile(const std::filesystem::path& path);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    // Empty for an empty file.
    std::span<const std::byte> Bytes() const { return {data_, size_}; }

private:
    const std::byte* data_ = nullptr;
    std::size_t size_ = 0;
};

// A new file beside `path` that takes its place when it is complete. Where the file system can do it, the
// file has no name until then, so that not even a killed program leaves anything behind.
class ReplacingFile {
public:
    explicit ReplacingFile(std::filesystem::path path);
    ~ReplacingFile();  // without a Commit the new file is gone
    ReplacingFile(const ReplacingFile&) = delete;
    ReplacingFile& operator=(const ReplacingFile&) = delete;

    void Append(std::span<const std::byte> bytes);

    // Brings what was appended to the disk and gives it the name. To be called once.
    void Commit();

private:
    void Open();
    void GiveName();
    [[noreturn]] void Fail(const char* what) const;

    std::filesystem::path path_;
    std::string temporary_;  // the name until Commit; empty while the file has none
    int file_ = -1;
};

}  // namespace jogeon::market
