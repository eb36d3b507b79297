// Bytes of text: trimming, the C library's number rules, and fields of a fixed width.
//
// White space is what isspace says in the C locale; no CP949 character holds such a byte.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

std::string_view TrimLeft(std::string_view text);
std::string_view TrimRight(std::string_view text);
std::string_view Trim(std::string_view text);

// atoi and atof: leading digits after white space, 0 where there are none; a too large number is clamped.
int Atoi(std::string_view text);
double Atof(std::string_view text);

// printf's "%d", and "%0*d" with `width` digits.
std::string Decimal(int value);
std::string ZeroPadded(int value, int width);

// printf's "%.*f" and "%g" with a point, whatever the desktop's language has.
std::string FixedDecimal(double value, int decimals);
std::string GeneralDecimal(double value);

// "%*.*s" and "%-*.*s" with width and precision `width`: cut to it, or filled with blanks on the other side.
std::string RightIn(std::string_view text, std::size_t width);
std::string LeftIn(std::string_view text, std::size_t width);

// The part of `text` from `offset`, `width` bytes at most; empty where `text` is too short.
std::string_view Field(std::string_view text, std::size_t offset, std::size_t width);

// `text` with every `from` replaced by `to`. `from` is not empty.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

// `text` with a to z as A to Z; other bytes stay, so that a two-byte character's second half must not be
// a small letter where this is used.
std::string UpperCase(std::string_view text);

// The pieces joined, each followed by `delimiter` but the last.
std::string Join(const std::vector<std::string>& pieces, std::string_view delimiter);

// The byte at `index`; NUL outside the text, and so for index 0 less 1.
constexpr char ByteAt(std::string_view text, std::size_t index) {
    return index < text.size() ? text[index] : '\0';
}

}  // namespace jogeon
