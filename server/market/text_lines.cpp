#include "server/market/text_lines.h"

#include <cerrno>
#include <cstring>
#include <string>

#include "server/market/market.h"

namespace jogeon::market {
namespace {

constexpr std::size_t kBufferSize = 4 * TextLines::kLongestLine;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

TextLines::TextLines(const std::filesystem::path& path)
    : name_(path.string()), file_(gzopen(path.c_str(), "rb")), buffer_(kBufferSize) {
    if (!file_) throw MarketError(name_ + ": can't be opened: " + std::strerror(errno));
    gzbuffer(file_.get(), kBufferSize);
}

void TextLines::Fail(const char* what) const {
    throw MarketError(name_ + ": " + what);
}

std::uint64_t TextLines::BytesRead() const {
    const z_off_t offset = gzoffset(file_.get());
    return offset > 0 ? static_cast<std::uint64_t>(offset) : 0;
}

void TextLines::Fill() {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    const std::size_t room = buffer_.size() - end_;
    const int read = gzread(file_.get(), buffer_.data() + end_, static_cast<unsigned>(room));
    int error = Z_OK;
    gzerror(file_.get(), &error);
    // A compressed file that is cut short gives what there is, and this error behind it.
    if (error == Z_ERRNO) throw MarketError(name_ + ": can't be read: " + std::strerror(errno));
    if (read < 0 || error != Z_OK) Fail("its compressed data are damaged or cut short");
    end_ += static_cast<std::size_t>(read);
    atEnd_ = static_cast<std::size_t>(read) < room;
}

std::optional<std::string_view> TextLines::Next() {
    const auto findEnd = [this] {
        return static_cast<const char*>(std::memchr(buffer_.data() + begin_, '\n', end_ - begin_));
    };
    const char* lineEnd = findEnd();
    if (!lineEnd && !atEnd_) {
        Fill();
        lineEnd = findEnd();
    }
    if (!lineEnd && begin_ == end_) return std::nullopt;

    const std::size_t stop = lineEnd ? static_cast<std::size_t>(lineEnd - buffer_.data()) : end_;
    std::string_view line(buffer_.data() + begin_, stop - begin_);
    begin_ = lineEnd ? stop + 1 : end_;
    ++number_;
    if (line.size() > kLongestLine) Fail("has a line of more than 65536 bytes; it is no table of text");
    if (number_ == 1 && line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace jogeon::market
