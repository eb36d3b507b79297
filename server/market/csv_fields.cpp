#include "server/market/csv_fields.h"

#include <charconv>
#include <cmath>

namespace jogeon::market {
namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// A tab is none where it separates.
std::string_view CutBlanksBefore(std::string_view text, char separator) {
    while (!text.empty() && IsBlank(text.front()) && text.front() != separator) text.remove_prefix(1);
    return text;
}

std::string_view CutBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

// Every whole number of this many digits is a double.
constexpr std::size_t kExactDigits = 15;

}  // namespace

bool CsvFields::Split(std::string_view line, char separator) {
    fields_.clear();
    if (line.find('"') != std::string_view::npos) return SplitQuoted(line, separator);
    std::size_t begin = 0;
    for (std::size_t end = line.find(separator); end != std::string_view::npos;
         end = line.find(separator, begin)) {
        fields_.push_back(CutBlanks(line.substr(begin, end - begin)));
        begin = end + 1;
    }
    fields_.push_back(CutBlanks(line.substr(begin)));
    return true;
}

bool CsvFields::SplitQuoted(std::string_view line, char separator) {
    unquoted_.clear();
    unquoted_.reserve(line.size());  // so that the fields in it never move
    while (true) {
        line = CutBlanksBefore(line, separator);
        if (!line.starts_with('"')) {
            const std::size_t end = line.find(separator);
            const std::string_view field = CutBlanks(line.substr(0, end));
            if (field.find('"') != std::string_view::npos) return false;
            fields_.push_back(field);
            if (end == std::string_view::npos) return true;
            line.remove_prefix(end + 1);
            continue;
        }
        const std::size_t begin = unquoted_.size();
        line.remove_prefix(1);
        for (std::size_t quote = line.find('"');; quote = line.find('"')) {
            if (quote == std::string_view::npos) return false;
            unquoted_ += line.substr(0, quote);
            line.remove_prefix(quote + 1);
            if (!line.starts_with('"')) break;
            unquoted_ += '"';
            line.remove_prefix(1);
        }
        fields_.push_back(CutBlanks(std::string_view(unquoted_).substr(begin)));
        line = CutBlanksBefore(line, separator);
        if (line.empty()) return true;
        if (line.front() != separator) return false;
        line.remove_prefix(1);
    }
}

std::optional<double> ParseNumber(std::string_view text) {
    if (text.empty()) return std::nullopt;
    if (text.size() <= kExactDigits) {
        long long whole = 0;
        std::size_t i = 0;
        for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) whole = whole * 10 + (text[i] - '0');
        if (i == text.size()) return static_cast<double>(whole);
    }
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

}  // namespace jogeon::market
