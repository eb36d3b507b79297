#include "screen/transactions/block_lists.h"

namespace jogeon {
namespace {

constexpr std::size_t kPointerSize = 4;
constexpr std::size_t kBegin = 4;
constexpr std::size_t kEnd = 8;
constexpr std::size_t kEndOfStorage = 12;

}  // namespace

void PutLittleEndian(std::string& block, std::size_t offset, std::uint32_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) block[offset + i] = static_cast<char>(value >> (8 * i) & 0xFF);
}

std::optional<std::uint32_t> GetLittleEndian(std::string_view block, std::size_t offset, std::size_t width) {
    const auto bytes = Inside(block, offset, width);
    if (!bytes) return std::nullopt;
    std::uint32_t value = 0;
    for (std::size_t i = width; i-- > 0;) value = value << 8 | static_cast<unsigned char>((*bytes)[i]);
    return value;
}

void AppendList(std::string& block, std::size_t container, std::string_view elements) {
    const auto begin = static_cast<std::uint32_t>(block.size());
    block.append(elements);
    const auto end = static_cast<std::uint32_t>(block.size());
    PutLittleEndian(block, container + kBegin, begin, kPointerSize);
    PutLittleEndian(block, container + kEnd, end, kPointerSize);
    PutLittleEndian(block, container + kEndOfStorage, end, kPointerSize);
}

std::optional<std::string_view> ListElements(std::string_view block, std::size_t container) {
    const auto begin = GetLittleEndian(block, container + kBegin, kPointerSize);
    const auto end = GetLittleEndian(block, container + kEnd, kPointerSize);
    const auto storage = GetLittleEndian(block, container + kEndOfStorage, kPointerSize);
    if (!begin || !end || !storage || *begin > *end || *end > *storage) return std::nullopt;
    return Inside(block, *begin, *end - *begin);
}

std::optional<std::string_view> Inside(std::string_view block, std::size_t offset, std::size_t length) {
    if (offset > block.size() || length > block.size() - offset) return std::nullopt;
    return block.substr(offset, length);
}

}  // namespace jogeon
