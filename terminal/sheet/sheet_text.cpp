#include "terminal/sheet/sheet_text.h"

#include <algorithm>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon::terminal {
namespace {

constexpr std::size_t kLongestName = 31;  // characters
constexpr std::size_t kDigitsKept = 15;   // that a spreadsheet's number has
constexpr std::string_view kForbidden = R"([]:*?/\'"<>|)";

bool MayStandInAName(char c) {
    return static_cast<unsigned char>(c) >= ' ' && c != '\x7F' &&
           kForbidden.find(c) == std::string_view::npos;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

std::string PlainName(std::string_view text) {
    const std::string_view trimmed = Trim(text);
    std::string name;
    std::size_t characters = 0;
    for (std::size_t at = 0; at < trimmed.size() && characters < kLongestName; ++characters) {
        const std::size_t length = CharacterLength(trimmed, at);
        const std::string_view character = trimmed.substr(at, length);
        name += length > 1 || MayStandInAName(character[0]) ? character : "_";
        at += length;
    }
    return name.empty() ? "결과"_cp949 : name;
}

std::string SheetName(std::string_view text) {
    const std::string name = PlainName(text);
    return UpperCase(name) == "HISTORY" || name == ToCp949(kNotesName) ? name + "_" : name;
}

std::optional<CellNumber> NumberOf(std::string_view cell) {
    const std::string_view text = Trim(cell);
    std::string_view size = text;
    if (!size.empty() && (size[0] == '+' || size[0] == '-')) size.remove_prefix(1);
    const std::size_t point = std::min(size.find('.'), size.size());
    const std::string_view fraction = size.substr(std::min(point + 1, size.size()));
    const std::string digits = std::string(size.substr(0, point)).append(fraction);
    if (digits.empty() || !std::all_of(digits.begin(), digits.end(), IsDigit)) return std::nullopt;
    const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
    if (digits.size() - first > kDigitsKept || fraction.size() > kDigitsKept) return std::nullopt;
    return CellNumber{Atof(text), fraction.size()};
}

std::string TitleOf(const host::SheetColumn& column) {
    const bool silent =
        column.format == host::SheetFormat::Percent && column.title.find('%') == std::string::npos;
    return silent ? column.title + "(%)" : column.title;
}

std::size_t ShownWidth(std::string_view cell, host::SheetFormat format) {
    const bool grouped = format == host::SheetFormat::Integer || format == host::SheetFormat::Decimal;
    return cell.size() + (grouped ? cell.size() / 3 : 0);
}

}  // namespace jogeon::terminal
