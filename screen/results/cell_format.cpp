#include "screen/results/cell_format.h"

#include <algorithm>
#include <array>
#include <optional>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

struct FormatName {
    CellFormat format;
    std::string_view word;
};

constexpr std::array<FormatName, 7> kFormatNames{{
    {CellFormat::Text, "text"},
    {CellFormat::Code, "code"},
    {CellFormat::Price, "price"},
    {CellFormat::Change, "change"},
    {CellFormat::Percent, "percent"},
    {CellFormat::Integer, "integer"},
    {CellFormat::Decimal, "decimal"},
}};

// A decimal number, cut into its pieces. `whole` has no leading zeros but a lone one.
struct Number {
    bool negative = false;
    std::string_view whole;
    std::string_view fraction;  // with its point, empty if there is none

    bool IsZero() const { return whole == "0" && fraction.find_first_not_of(".0") == std::string_view::npos; }
};

bool AllDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<Number> ReadNumber(std::string_view raw) {
    std::string_view text = Trim(raw);
    Number number;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        number.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const std::size_t point = std::min(text.find('.'), text.size());
    number.whole = text.substr(0, point);
    number.fraction = text.substr(point);
    if (number.whole.empty() || !AllDigits(number.whole)) return std::nullopt;
    if (!number.fraction.empty() && !AllDigits(number.fraction.substr(1))) return std::nullopt;
    const std::size_t first = number.whole.find_first_not_of('0');
    number.whole.remove_prefix(std::min(first, number.whole.size() - 1));
    return number;
}

std::string Grouped(std::string_view digits) {
    std::string out;
    out.reserve(digits.size() + digits.size() / 3);
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
        out += digits[i];
    }
    return out;
}

std::string WithMinus(const Number& number, std::string_view whole) {
    std::string out(number.negative && !number.IsZero() ? "-" : "");
    return out.append(whole).append(number.fraction);
}

std::string WithArrow(const Number& number) {
    static const std::string up = "▲ "_cp949;
    static const std::string down = "▼ "_cp949;
    const std::string size = Grouped(number.whole).append(number.fraction);
    if (number.IsZero()) return size;
    return (number.negative ? down : up) + size;
}

std::string AsPercent(const Number& number) {
    std::string out(number.IsZero() ? "" : number.negative ? "-" : "+");
    return out.append(Grouped(number.whole)).append(number.fraction).append("%");
}

bool IsNumeric(CellFormat format) {
    return format != CellFormat::Text && format != CellFormat::Code;
}

std::string OnOneLine(std::string_view text) {
    std::string out(text);
    std::replace_if(
        out.begin(), out.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
    return out;
}

}  // namespace

std::string_view FormatWord(CellFormat format) {
    for (const FormatName& name : kFormatNames) {
        if (name.format == format) return name.word;
    }
    return kFormatNames.front().word;
}

CellFormat FormatOfWord(std::string_view word) {
    for (const FormatName& name : kFormatNames) {
        if (name.word == word) return name.format;
    }
    return CellFormat::Text;
}

Sign SignOf(std::string_view raw) {
    const std::optional<Number> number = ReadNumber(raw);
    if (!number || number->IsZero()) return Sign::None;
    return number->negative ? Sign::Fall : Sign::Rise;
}

Sign SignOfPrice(std::string_view price, std::string_view current, std::string_view change) {
    const std::optional<Number> number = ReadNumber(price);
    if (!number || number->IsZero() || !ReadNumber(current) || !ReadNumber(change)) return Sign::None;
    // Half a hundredth: prices have at most two decimals, and a sum of them isn't exact in binary.
    constexpr double kNothing = 0.005;
    const double distance = Atof(Trim(price)) - (Atof(Trim(current)) - Atof(Trim(change)));
    if (distance > kNothing) return Sign::Rise;
    return distance < -kNothing ? Sign::Fall : Sign::None;
}

std::string ShownText(CellFormat format, std::string_view raw) {
    const std::optional<Number> number = IsNumeric(format) ? ReadNumber(raw) : std::nullopt;
    if (!number) return std::string(raw);
    if (format == CellFormat::Change) return WithArrow(*number);
    if (format == CellFormat::Percent) return AsPercent(*number);
    return WithMinus(*number, Grouped(number->whole));
}

std::string CopiedText(CellFormat format, std::string_view raw) {
    const std::optional<Number> number = IsNumeric(format) ? ReadNumber(raw) : std::nullopt;
    if (!number) return OnOneLine(raw);
    return WithMinus(*number, number->whole);
}

bool IsSigned(CellFormat format) {
    return format == CellFormat::Change || format == CellFormat::Percent;
}

Placing PlacingOf(CellFormat format) {
    if (format == CellFormat::Text) return Placing::Left;
    return format == CellFormat::Code ? Placing::Centre : Placing::Right;
}

}  // namespace jogeon
