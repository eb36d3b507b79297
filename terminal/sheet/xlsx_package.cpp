#include "terminal/sheet/xlsx_package.h"

#include <algorithm>
#include <cstdint>

#include <zlib.h>

#include "screen/text/bytes.h"
#include "screen/transactions/block_lists.h"

namespace jogeon::terminal {
namespace {

// Of the zip format: the record at the end of an archive, the entries of its directory, and the head before
// each entry's bytes.
constexpr std::size_t kEndSize = 22, kCountInEnd = 10, kDirectoryInEnd = 16;
constexpr std::size_t kEntrySize = 46, kLocalSize = 30;
constexpr std::size_t kMethod = 10, kPackedSize = 20, kSize = 24, kNameSize = 28, kExtraSize = 30,
                      kCommentSize = 32, kLocalAt = 42;
constexpr std::size_t kLocalNameSize = 26, kLocalExtraSize = 28;
constexpr std::uint32_t kDeflated = 8;
constexpr std::uint32_t kLargestPart = 1u << 30;

// A number of the format; beyond the end of the bytes it is 0.
std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t width) {
    return GetLittleEndian(bytes, at, width).value_or(0);
}

std::optional<std::string> Inflate(std::string_view packed, std::size_t size) {
    std::string text(size, '\0');
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) return std::nullopt;
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef*>(text.data());
    stream.avail_out = static_cast<uInt>(text.size());
    const int result = inflate(&stream, Z_FINISH);
    const bool complete = result == Z_STREAM_END && stream.total_out == size;
    inflateEnd(&stream);
    return complete ? std::optional(std::move(text)) : std::nullopt;
}

// The text of the directory's entry that begins `entry`.
std::optional<std::string> TextOf(std::string_view package, std::string_view entry) {
    const std::size_t local = Number(entry, kLocalAt, 4);
    const std::size_t begin = local + kLocalSize + Number(package, local + kLocalNameSize, 2) +
                              Number(package, local + kLocalExtraSize, 2);
    const std::uint32_t size = Number(entry, kSize, 4);
    if (Number(entry, kMethod, 2) != kDeflated || size > kLargestPart) return std::nullopt;
    return Inflate(Field(package, begin, Number(entry, kPackedSize, 4)), size);
}

// The name of the first element behind the declaration.
std::string_view RootOf(std::string_view xml) {
    const std::size_t declared = std::min(xml.find("?>"), xml.size());
    const std::size_t begin = std::min(xml.find('<', declared), xml.size());
    const std::size_t end = xml.find_first_of(" />", begin);
    return begin < end && end < xml.size() ? xml.substr(begin + 1, end - begin - 1) : std::string_view();
}

bool EndsItsRoot(std::string_view xml) {
    const std::string_view root = RootOf(xml);
    return !root.empty() && TrimRight(xml).ends_with("</" + std::string(root) + ">");
}

}  // namespace

std::optional<std::map<std::string, std::string>> ReadParts(std::string_view package) {
    if (package.size() < kEndSize) return std::nullopt;
    const std::string_view end = package.substr(package.size() - kEndSize);
    if (!end.starts_with("PK\5\6")) return std::nullopt;
    std::map<std::string, std::string> parts;
    std::size_t at = Number(end, kDirectoryInEnd, 4);
    for (std::uint32_t left = Number(end, kCountInEnd, 2); left > 0; --left) {
        const std::string_view entry = Field(package, at, kEntrySize);
        if (!entry.starts_with("PK\1\2")) return std::nullopt;
        std::optional<std::string> text = TextOf(package, entry);
        if (!text) return std::nullopt;
        const std::size_t nameSize = Number(entry, kNameSize, 2);
        parts[std::string(Field(package, at + kEntrySize, nameSize))] = std::move(*text);
        at += kEntrySize + nameSize + Number(entry, kExtraSize, 2) + Number(entry, kCommentSize, 2);
    }
    return parts;
}

bool IsWhole(std::string_view package) {
    const auto parts = ReadParts(package);
    return parts && !parts->empty() && std::all_of(parts->begin(), parts->end(), [](const auto& part) {
               return EndsItsRoot(part.second);
           });
}

}  // namespace jogeon::terminal
