// One field of a fixed byte layout, and how it is written into a block and read from one.
//
// The layouts of headers, blocks and requests are tables of these; writing and reading share the tables.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "screen/text/bytes.h"

namespace jogeon {

// `width` bytes from `offset` on.
struct ByteField {
    std::size_t offset = 0;
    std::size_t width = 0;

    constexpr std::size_t End() const { return offset + width; }
};

// The bytes of the field; fewer where `block` ends sooner.
inline std::string_view Read(std::string_view block, ByteField field) {
    return Field(block, field.offset, field.width);
}

// The field as a decimal number by atoi's rules, 0 where there is none.
inline int ReadNumber(std::string_view block, ByteField field) {
    return Atoi(Read(block, field));
}

// Puts `text` over the field, cut to it or followed by blanks. `block` reaches to the field's end.
inline void Write(std::string& block, ByteField field, std::string_view text) {
    char* place = block.data() + field.offset;
    const std::size_t length = std::min(text.size(), field.width);
    std::copy_n(text.data(), length, place);
    std::fill(place + length, place + field.width, ' ');
}

// The same, with the blanks in front.
inline void WriteRight(std::string& block, ByteField field, std::string_view text) {
    char* place = block.data() + field.offset;
    const std::size_t length = std::min(text.size(), field.width);
    std::fill(place, place + field.width - length, ' ');
    std::copy_n(text.data(), length, place + field.width - length);
}

}  // namespace jogeon
