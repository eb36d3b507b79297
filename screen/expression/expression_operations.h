// What the buttons beside the expression box do to the selected part of its text.
//
// Relies on the parser for the check of a selection; only the selected text is looked at, as it stands: it is
// neither trimmed nor widened to words. Positions count bytes of the display form.
#pragma once

#include <string>
#include <string_view>

#include "screen/expression/expression_check.h"
#include "screen/expression/text_selection.h"

namespace jogeon {

struct SelectionEdit {
    enum class Outcome {
        Changed,
        Nothing,   // there is nothing to do
        TooShort,  // less is selected than the operation needs
        Refused    // the selected text is no expression; `check` says where it fails
    };

    Outcome outcome = Outcome::Nothing;
    std::string text;         // the whole text afterwards
    TextSelection selection;  // the same part of it, by its new end
    ExpressionCheck check;
};

// Negates what is selected, or takes its negation away: `A` and `!A`, `A and B` and `!(A and B)`.
SelectionEdit ToggleNot(std::string_view text, TextSelection selection);

// Puts brackets around it; blanks at its ends stay outside.
SelectionEdit Parenthesize(std::string_view text, TextSelection selection);

// Takes the first open bracket in it and its partner away.
SelectionEdit RemoveParenthesis(std::string_view text, TextSelection selection);

// Takes all brackets and `!` in it away, whatever is left.
SelectionEdit RemoveAllMarks(std::string_view text, TextSelection selection);

}  // namespace jogeon
