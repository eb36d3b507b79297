#include "server/market/source_text.h"

#include <algorithm>
#include <cstddef>

#include "screen/text/cp949.h"

namespace jogeon::market {
namespace {

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// How many bytes follow the first byte of a character; -1 if none begins so.
int FollowingBytes(unsigned char first) {
    if (first < 0x80) return 0;
    if (first >= 0xC2 && first <= 0xDF) return 1;
    if (first >= 0xE0 && first <= 0xEF) return 2;
    if (first >= 0xF0 && first <= 0xF4) return 3;
    return -1;
}

constexpr std::size_t kLongestQuote = 40;  // bytes

// `utf8` cut to at most `size` bytes, never inside a character.
void CutUtf8(std::string& utf8, std::size_t size) {
    if (utf8.size() <= size) return;
    while (size > 0 && (static_cast<unsigned char>(utf8[size]) & 0xC0) == 0x80) --size;
    utf8.resize(size);
    utf8 += "...";
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const int following = FollowingBytes(static_cast<unsigned char>(bytes[i]));
        if (following < 0 || i + static_cast<std::size_t>(following) >= bytes.size()) return false;
        for (int k = 0; k < following; ++k)
            if ((static_cast<unsigned char>(bytes[++i]) & 0xC0) != 0x80) return false;
    }
    return true;
}

std::string SourceText::Decode(std::string_view bytes) {
    if (IsAscii(bytes)) return std::string(bytes);
    if (encoding_ == Encoding::Undecided) encoding_ = IsUtf8(bytes) ? Encoding::Utf8 : Encoding::Cp949;
    // A file that began as UTF-8 and goes on as something else is read as CP949 where it must be.
    if (encoding_ == Encoding::Utf8 && IsUtf8(bytes)) return std::string(bytes);
    return ToUtf8(bytes);
}

std::string SourceText::Quote(std::string_view bytes) {
    std::string text = Decode(bytes);
    for (char& c : text)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = '?';
    CutUtf8(text, kLongestQuote);
    return '"' + text + '"';
}

}  // namespace jogeon::market
