#include "screen/text/bytes.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <iterator>

namespace jogeon {
namespace {

bool IsSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

}  // namespace

std::string_view TrimLeft(std::string_view text) {
    while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
    return text;
}

std::string_view TrimRight(std::string_view text) {
    while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
    return text;
}

std::string_view Trim(std::string_view text) {
    return TrimLeft(TrimRight(text));
}

int Atoi(std::string_view text) {
    const long value = std::strtol(std::string(text).c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

// Not strtod, which would take the decimal point of the desktop's language.
double Atof(std::string_view text) {
    text = TrimLeft(text);
    if (text.starts_with('+')) text.remove_prefix(1);
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string Decimal(int value) {
    return std::to_string(value);
}

std::string ZeroPadded(int value, int width) {
    std::string digits = std::to_string(value);
    const std::size_t sign = value < 0 ? 1 : 0;
    const auto wanted = static_cast<std::size_t>(std::max(width, 0));
    if (digits.size() < wanted) digits.insert(sign, wanted - digits.size(), '0');
    return digits;
}

std::string FixedDecimal(double value, int decimals) {
    std::string digits(static_cast<std::size_t>(DBL_MAX_10_EXP + 4 + std::max(decimals, 0)), '\0');
    char* const end = digits.data() + digits.size();
    const auto written = std::to_chars(digits.data(), end, value, std::chars_format::fixed, decimals);
    digits.resize(static_cast<std::size_t>(written.ptr - digits.data()));
    return digits;
}

std::string GeneralDecimal(double value) {
    char digits[32];
    const auto end = std::to_chars(digits, std::end(digits), value, std::chars_format::general, 6).ptr;
    return std::string(digits, end);
}

std::string RightIn(std::string_view text, std::size_t width) {
    const std::string_view cut = text.substr(0, width);
    return std::string(width - cut.size(), ' ').append(cut);
}

std::string LeftIn(std::string_view text, std::size_t width) {
    std::string field(text.substr(0, width));
    field.resize(width, ' ');
    return field;
}

std::string_view Field(std::string_view text, std::size_t offset, std::size_t width) {
    return offset < text.size() ? text.substr(offset, width) : std::string_view();
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string out;
    std::size_t start = 0;
    for (std::size_t at; (at = text.find(from, start)) != std::string_view::npos; start = at + from.size()) {
        out.append(text.substr(start, at - start)).append(to);
    }
    return out.append(text.substr(start));
}

std::string UpperCase(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return out;
}

std::string Join(const std::vector<std::string>& pieces, std::string_view delimiter) {
    std::string out;
    for (const std::string& piece : pieces) {
        if (&piece != &pieces.front()) out += delimiter;
        out += piece;
    }
    return out;
}

}  // namespace jogeon
