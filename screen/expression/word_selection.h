// Selecting an expression by whole words with Shift and the arrow keys.
//
// A word is a run of characters between blanks, and each blank counts as a word of its own. Positions count
// characters; the text is given anew with every key, one byte a character.
#pragma once

#include <optional>
#include <string_view>

#include "screen/expression/text_selection.h"

namespace jogeon {

// The end of the word at `position`, or its beginning with `backward`. Forward, a blank is passed; backward,
// a blank and the end of the text stay where they are. A position outside the text is returned as it is.
int WordBoundary(std::string_view text, int position, bool backward);

class WordSelection {
public:
    bool ShiftIsDown() const { return shiftDown_; }

    // Shift begins a selection at the caret and ends it; what it selected last stays selected.
    void OnShiftDown(int caret);
    void OnShiftUp();

    // The text was changed while Shift may be held: a selection under way begins again at the caret.
    void OnTextChanged(int caret);

    // An arrow key without Shift.
    void OnPlainLeft() { wentLeft_ = false; }
    void OnPlainRight() { wentRight_ = false; }

    // An arrow key with Shift: what is selected next, `end` being where the caret goes, which may lie before
    // `start`. None if the selection stays.
    std::optional<TextSelection> OnShiftLeft(std::string_view text);
    std::optional<TextSelection> OnShiftRight(std::string_view text);

private:
    static constexpr int kNone = -1;

    bool BeginAtCaret();

    int anchor_ = kNone;  // the end that moves
    int caret_ = kNone;   // the other one, first the place of the caret
    bool shiftDown_ = false;
    bool wentLeft_ = false;
    bool wentRight_ = false;
};

}  // namespace jogeon
