// How CFBGrid writes a number: the static functions of FBGridData that make texts.

#include <charconv>
#include <cmath>

#include "screen/fbgrid/fb_grid_data.h"

namespace {

// printf's "%.*f" with the point of the C locale, whatever the desktop's language.
std::string Fixed(double value, int decimals) {
    char buffer[400];  // the largest number has 309 digits before the point
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    return std::string(buffer, end.ptr);
}

std::string WithoutTrailing(std::string digits, char c) {
    while (!digits.empty() && digits.back() == c) digits.pop_back();
    return digits;
}

std::string WithCommas(std::string digits) {
    const std::size_t sign = digits.starts_with('-') ? 1 : 0;
    for (std::size_t end = digits.size(); end > sign + 3; end -= 3) digits.insert(end - 3, 1, ',');
    return digits;
}

}  // namespace

std::string FBGridData::FormatFloat(double value, int decimals) {
    if (!std::isfinite(value)) return Fixed(value, 0);
    const std::string shortest = WithoutTrailing(WithoutTrailing(Fixed(value, 6), '0'), '.');
    const bool whole = shortest.find('.') == std::string::npos;
    return whole && decimals == 0 ? WithCommas(shortest) : Fixed(value, 2);
}

std::string FBGridData::ShownText(const CCell& cell) {
    if ((cell.state & CCell::kNumeric) == 0) return cell.text;
    return FormatFloat(cell.value, (cell.state & CCell::kTwoDecimals) != 0 ? 1 : 0) + cell.text;
}
