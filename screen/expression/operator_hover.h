// Which operator of an expression the pointer stands on, and what a double click turns it into.
//
// An operator is found where it stands between blanks, in any case. Positions count characters.
#pragma once

#include <string_view>

#include "screen/expression/text_selection.h"

namespace jogeon {

enum class OperatorKind { None, And, Or, Ampersand, Bar };

struct OperatorHover {
    OperatorKind kind = OperatorKind::None;
    TextSelection place;  // of the word that was looked at, an operator or not
};

// Looks at the word of the character at `index`. An index outside the text, as any in an empty one, changes
// nothing.
void TestHover(std::string_view text, int index, OperatorHover& hover);

// Whether `and` and its sign are meant, or `or` and its sign.
bool MeansAnd(OperatorKind kind);

struct OperatorToggle {
    TextSelection place;  // what is replaced
    std::string_view replacement;
    OperatorHover after;  // the replacement, as the hover test would find it
};

// `hover` is on an operator.
OperatorToggle ToggleOf(const OperatorHover& hover);

}  // namespace jogeon
