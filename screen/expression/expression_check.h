// The verdict on an expression, and how a refused one is shown.
//
// Relies on the parser. It says whether a text is well formed, not whether its letters are in the list.
#pragma once

#include <string>
#include <string_view>

namespace jogeon {

struct ExpressionCheck {
    bool valid = false;
    int errorPosition = -1;  // byte index of the token complained of; -1: an empty text has none
    std::string message;     // the parser's own words, empty when it has none; not for the user
};

ExpressionCheck CheckExpressionText(std::string_view text);

// The text with a pointing hand before the byte at `errorPosition`, before the whole of it for -1: what the
// error dialog shows.
std::string ExpressionErrorText(std::string_view text, int errorPosition);

}  // namespace jogeon
