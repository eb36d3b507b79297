// The fields of one line of a table, between commas or what else separates them.
//
// A field may stand in double quotes, with a quote inside written twice. No field goes over a line end.
// Works on bytes: no comma, semicolon, tab or quote is part of a character of UTF-8 or CP949.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon::market {

class CsvFields {
public:
    // Takes `line` apart; false when a quote isn't closed or text stands beside one. `line` must live as long
    // as the fields are used.
    bool Split(std::string_view line, char separator = ',');

    std::size_t Count() const { return fields_.size(); }

    // Without the blanks around it, and without its quotes.
    std::string_view operator[](std::size_t index) const { return fields_[index]; }

private:
    bool SplitQuoted(std::string_view line, char separator);

    std::vector<std::string_view> fields_;
    std::string unquoted_;  // where fields with a doubled quote live
};

// A decimal number, all of `text`; none if it isn't one or not finite.
std::optional<double> ParseNumber(std::string_view text);

}  // namespace jogeon::market
