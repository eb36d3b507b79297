#include "screen/expression/expression_operations.h"

#include <algorithm>
#include <utility>

#include "screen/expression/expression_text.h"

namespace jogeon {
namespace {

using Outcome = SelectionEdit::Outcome;

constexpr char kBlank = ' ';
constexpr std::size_t kMinimumForOne = 1;    // of the operations that add something
constexpr std::size_t kMinimumToRemove = 2;  // of those that only take away

// The selected text and what becomes of it.
struct Part {
    std::string text;
    Outcome outcome = Outcome::Changed;
    ExpressionCheck check;
};

// Whether the part is an expression; if it isn't, the part says so.
bool Passes(Part& part) {
    part.check = CheckExpressionText(part.text);
    if (!part.check.valid) part.outcome = Outcome::Refused;
    return part.check.valid;
}

// `open` and `close` right around the text that isn't blank.
void Surround(std::string& text, std::string_view open, std::string_view close) {
    text.insert(text.find_last_not_of(kBlank) + 1, close);
    text.insert(text.find_first_not_of(kBlank), open);
}

void EraseFirst(std::string& text, char character) {
    text.erase(text.find(character), 1);
}

void ParenthesizePart(Part& part) {
    if (Passes(part)) Surround(part.text, "(", ")");
}

void RemoveParenthesisOfPart(Part& part) {
    if (!Passes(part)) return;
    const std::size_t open = part.text.find('(');
    if (open == std::string::npos) {
        part.outcome = Outcome::Nothing;
        return;
    }
    part.text = RemoveBracketFromOpen(std::move(part.text), static_cast<int>(open));
}

void RemoveMarksOfPart(Part& part) {
    const auto removed = std::erase_if(part.text, [](char c) { return c == '(' || c == ')' || c == '!'; });
    if (removed == 0) part.outcome = Outcome::Nothing;
}

bool IsOneLetter(std::string_view compact) {
    return compact.size() == 1 && compact[0] >= 'A' && compact[0] <= 'Z';
}

void ToggleNotOfPart(Part& part) {
    constexpr std::size_t kShortestBracketed = 3;  // a selection below this is a `!` with at most a letter
    std::string solid = part.text;
    std::erase(solid, kBlank);
    if (part.text.size() < kShortestBracketed && solid.starts_with('!')) {
        EraseFirst(part.text, '!');
        return;
    }
    const bool negatedBrackets = part.text.size() >= kShortestBracketed && solid.starts_with("!(") &&
                                 IsWhollyBracketed(std::string_view(solid).substr(1));
    if (!Passes(part)) return;
    if (negatedBrackets) {
        EraseFirst(part.text, '!');
        EraseFirst(part.text, '(');
        part.text.erase(part.text.rfind(')'), 1);
    } else if (IsOneLetter(solid) || IsWhollyBracketed(solid)) {
        Surround(part.text, "!", "");
    } else {
        Surround(part.text, "!(", ")");
    }
}

SelectionEdit Apply(std::string_view text, TextSelection selection, std::size_t minimum,
                    void (*operation)(Part&)) {
    const auto start = std::min(static_cast<std::size_t>(std::max(selection.start, 0)), text.size());
    const auto end = std::clamp(static_cast<std::size_t>(std::max(selection.end, 0)), start, text.size());
    SelectionEdit edit{Outcome::TooShort, std::string(text), selection, {}};
    if (end - start < minimum) return edit;
    Part part{std::string(text.substr(start, end - start)), Outcome::Changed, {}};
    operation(part);
    edit.outcome = part.outcome;
    edit.check = std::move(part.check);
    if (edit.outcome != Outcome::Changed) return edit;
    edit.text.replace(start, end - start, part.text);
    edit.selection = {static_cast<int>(start), static_cast<int>(start + part.text.size())};
    return edit;
}

}  // namespace

SelectionEdit ToggleNot(std::string_view text, TextSelection selection) {
    return Apply(text, selection, kMinimumForOne, ToggleNotOfPart);
}

SelectionEdit Parenthesize(std::string_view text, TextSelection selection) {
    return Apply(text, selection, kMinimumForOne, ParenthesizePart);
}

SelectionEdit RemoveParenthesis(std::string_view text, TextSelection selection) {
    return Apply(text, selection, kMinimumToRemove, RemoveParenthesisOfPart);
}

SelectionEdit RemoveAllMarks(std::string_view text, TextSelection selection) {
    return Apply(text, selection, kMinimumToRemove, RemoveMarksOfPart);
}

}  // namespace jogeon
