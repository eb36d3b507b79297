// The lines of a text file, plain or gzipped, read through a buffer of fixed size.
//
// Relies on zlib, which reads a plain file as it is. A byte order mark is left out; a line ends with LF or CR
// LF.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <zlib.h>

namespace jogeon::market {

class TextLines {
public:
    static constexpr std::size_t kLongestLine = 65'536;  // bytes

    // Throws MarketError when the file can't be opened.
    explicit TextLines(const std::filesystem::path& path);

    // The next line without its end, valid until the next call; none after the last one. Throws MarketError
    // when the file can't be read, its compressed data are damaged or cut short, or a line is too long.
    std::optional<std::string_view> Next();

    // Of the line that Next gave last; 1 for the first.
    long Number() const { return number_; }

    // How much of the file, as it lies on the disk, has been read.
    std::uint64_t BytesRead() const;

private:
    struct Closer {
        void operator()(gzFile file) const { gzclose(file); }
    };

    void Fill();
    [[noreturn]] void Fail(const char* what) const;

    std::string name_;
    std::unique_ptr<gzFile_s, Closer> file_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;  // of what is in the buffer and not given out yet
    std::size_t end_ = 0;
    bool atEnd_ = false;  // of the file
    long number_ = 0;
};

}  // namespace jogeon::market
