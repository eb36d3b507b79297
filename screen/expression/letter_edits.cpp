#include "screen/expression/letter_edits.h"

#include <cstddef>
#include <utility>

#include "screen/expression/expression_text.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

bool IsLetter(char c) {
    return c >= 'A' && c <= 'Z';
}
bool IsOperator(char c) {
    return c == '&' || c == '|';
}

// Index of the letter with this number, counted from 0; npos if there are fewer.
std::size_t LetterIndex(std::string_view text, int number) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (IsLetter(text[i]) && number-- == 0) return i;
    }
    return std::string_view::npos;
}

void EraseOperatorAt(std::string& text, std::size_t index) {
    if (IsOperator(ByteAt(text, index))) text.erase(index, 1);
}

// Takes the pair whose open bracket stands right before the letter at `at` away, then a `!` before the pair
// and an operator behind the letter. Gives the letter's new index.
std::size_t UnbracketLetter(std::string& text, std::size_t at) {
    const char letter = text[at];
    text = RemoveBracketFromOpen(std::move(text), static_cast<int>(at - 1));
    at = text.find(letter);
    if (ByteAt(text, at - 1) == '!') text.erase(--at, 1);
    EraseOperatorAt(text, at + 1);
    return at;
}

// A letter with its own `!` in front.
void RemoveNegatedLetter(std::string& text, std::size_t at) {
    text.erase(--at, 1);
    if (ByteAt(text, at - 1) == '(') {
        at = UnbracketLetter(text, at);
    } else if (IsOperator(ByteAt(text, at - 1))) {
        text.erase(--at, 1);
    }
    text.erase(at, 1);
    EraseOperatorAt(text, 0);
}

}  // namespace

void InsertLetter(std::string& compact, char letter, int position, bool negated) {
    const std::string joined = (negated ? "!" : "") + std::string(1, letter);
    if (compact.empty()) {
        compact = letter;
        return;
    }
    if (position == 0) {
        compact.insert(0, joined + "&");
        return;
    }
    const std::size_t next = LetterIndex(compact, position);
    if (next == std::string::npos) {
        compact += "&" + joined;
        return;
    }
    const std::size_t operatorBefore = compact.find_last_of("&|", next);
    if (operatorBefore != std::string::npos) compact.insert(operatorBefore, "&" + joined);
}

bool RemoveLetter(std::string& compact, char letter) {
    if (letter < 'A' || letter > 'Z') return false;
    std::size_t at = compact.find(letter);
    if (at != std::string::npos && ByteAt(compact, at + 1) == ')') {
        compact = RemoveBracketFromClose(std::move(compact), static_cast<int>(at + 1));
        at = compact.find(letter);
    }
    if (at == std::string::npos) return false;

    const char before = ByteAt(compact, at - 1);
    if (before == '!') {
        RemoveNegatedLetter(compact, at);
    } else if (at == 0) {
        EraseOperatorAt(compact, 1);
        compact.erase(0, 1);
    } else if (before == '(') {
        compact.erase(UnbracketLetter(compact, at), 1);
    } else if (IsOperator(before)) {
        compact.erase(at - 1, 2);
    }
    return before == '!';
}

std::string RemoveLetterFromExpression(std::string exp, char letter) {
    RemoveLetter(exp, letter);
    return exp;
}

void RenumberLetters(std::string& compact, std::string_view letters) {
    for (char& c : compact) {
        if (letters.empty()) return;
        if (!IsLetter(c)) continue;
        c = letters.front();
        letters.remove_prefix(1);
    }
}

}  // namespace jogeon
