// What may be typed into an expression, in which ink it shows, and how long it may get.
//
// Relies on nothing but the host's message box as a record.
#pragma once

#include <optional>
#include <string_view>

#include "screen/host/services.h"

namespace jogeon {

// Latin letters, blanks, `!`, `&`, `|` and the three kinds of brackets.
bool IsExpressionCharacter(char32_t character);

enum class ExpressionInk { Plain, Operator, Letter, Bracket };

// The ink of a character while it is being typed: small letters are not yet told from condition letters.
ExpressionInk TypedInk(char32_t character);

// The ink of a character of the finished text.
ExpressionInk FinishedInk(char32_t character);

inline constexpr int kMaxExpressionCharacters = 256;  // in the box
inline constexpr int kMaxExpressionTokens = 100;  // bytes of the compact form, where it is stored and sent

// The length of the compact form that a text has or will have once its words are written out: a run of Latin
// letters counts as one, so that `an` on its way to `and` is no longer than what it becomes.
int CompactLength(std::string_view display);

// Refuses a change that makes a text longer than it may be: the box to show. None for a change that may be
// made; one that shortens a text which is too long already may.
std::optional<host::Box> RefuseLength(std::string_view before, std::string_view after);

// The box for an expression whose compact form has `length` bytes, which are too many.
host::Box CompactFormTooLong(int length);

}  // namespace jogeon
