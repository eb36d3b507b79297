#include "screen/expression/word_selection.h"

namespace jogeon {
namespace {

constexpr char kBlank = ' ';

int EndOfWord(std::string_view text, int position) {
    if (text[static_cast<std::size_t>(position)] == kBlank) return position + 1;
    const std::size_t blank = text.find(kBlank, static_cast<std::size_t>(position));
    return static_cast<int>(blank == std::string_view::npos ? text.size() : blank);
}

// The character at 0 isn't looked at: a text that begins with a blank has it in its first word.
int BeginningOfWord(std::string_view text, int position) {
    for (int i = position; i > 0; --i) {
        if (text[static_cast<std::size_t>(i)] == kBlank) return i == position ? i : i + 1;
    }
    return 0;
}

}  // namespace

int WordBoundary(std::string_view text, int position, bool backward) {
    if (position < 0 || position >= static_cast<int>(text.size())) return position;
    return backward ? BeginningOfWord(text, position) : EndOfWord(text, position);
}

void WordSelection::OnShiftDown(int caret) {
    shiftDown_ = true;
    caret_ = caret;
}

void WordSelection::OnShiftUp() {
    shiftDown_ = false;
    anchor_ = kNone;
}

void WordSelection::OnTextChanged(int caret) {
    anchor_ = kNone;
    caret_ = caret;
}

bool WordSelection::BeginAtCaret() {
    if (anchor_ < 0) anchor_ = caret_;
    return anchor_ >= 0;
}

std::optional<TextSelection> WordSelection::OnShiftLeft(std::string_view text) {
    wentLeft_ = true;
    if (!BeginAtCaret()) return std::nullopt;
    // On the way back to a beginning at 0 the selection gets smaller.
    const bool narrows = wentRight_ && caret_ == 0;
    const int start = narrows ? WordBoundary(text, 0, true) : WordBoundary(text, caret_ - 1, false);
    const int end = WordBoundary(text, anchor_ - 1, true);
    if (narrows) anchor_ = end;
    if (start == kNone || end == kNone) return std::nullopt;
    if (!narrows) {
        anchor_ = end;
        caret_ = start;
        wentRight_ = false;
    }
    return TextSelection{start, end};
}

std::optional<TextSelection> WordSelection::OnShiftRight(std::string_view text) {
    const int length = static_cast<int>(text.size());
    wentRight_ = true;
    if (!BeginAtCaret()) return std::nullopt;
    // On the way back to a beginning at the text's end the selection gets smaller.
    if (wentLeft_ && caret_ == length) {
        anchor_ = WordBoundary(text, anchor_, false);
        return TextSelection{WordBoundary(text, caret_, false), anchor_};
    }
    if (anchor_ >= length - 1) return std::nullopt;
    caret_ = WordBoundary(text, caret_, true);
    anchor_ = WordBoundary(text, anchor_, false);
    wentLeft_ = false;
    return TextSelection{caret_, anchor_};
}

}  // namespace jogeon
