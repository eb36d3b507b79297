// The two text forms of an expression and the edits of the compact one.
//
// Display form: `A and (B or !C)`, as the box shows it. Compact form: `A&(B|!C)`, as it is stored and sent:
// upper case, one character a token, no blanks. Nothing here looks at the syntax.
#pragma once

#include <string>
#include <string_view>

#include "screen/expression/expression_check.h"

namespace jogeon {

std::string ToCompactForm(std::string_view display);
std::string ToDisplayForm(std::string_view compact);

// True if the text begins with a bracket that its last character closes: `(A&B)`, but not `(A)&(B)`.
bool IsWhollyBracketed(std::string_view text);

// The compact text without the bracket at `closeIndex`, its partner, and a `!` right before that one.
// Without a partner the first character goes in its place.
std::string RemoveBracketFromClose(std::string text, int closeIndex);

// The compact text without the bracket at `openIndex` and its partner. Without a partner the first character
// goes in its place.
std::string RemoveBracketFromOpen(std::string text, int openIndex);

}  // namespace jogeon
