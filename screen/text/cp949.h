// Conversion between UTF-8 and CP949 (Windows code page 949), the text of all records, files and packets.
//
// Relies on the C library's iconv. A std::string holds CP949 bytes unless its name says utf8.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace jogeon {

// CP949 bytes of a UTF-8 text; none when the text is malformed or has a character outside CP949.
std::optional<std::string> TryToCp949(std::string_view utf8);

// The same, with '?' in the place of each character that has no CP949 form.
std::string ToCp949(std::string_view utf8);

// UTF-8 of CP949 bytes; each byte that begins no character becomes U+FFFD.
std::string ToUtf8(std::string_view cp949);

// The one form of a literal that enters a record, file or packet: "조건"_cp949.
std::string operator""_cp949(const char* utf8, std::size_t length);

// Bytes of the character of `text` that begins at `at`: 2 or 1. A first byte without a second counts 1.
std::size_t CharacterLength(std::string_view cp949, std::size_t at);

// `text` cut to at most `bytes` bytes, never inside a two-byte character.
std::string_view CutToBytes(std::string_view cp949, std::size_t bytes);

}  // namespace jogeon
