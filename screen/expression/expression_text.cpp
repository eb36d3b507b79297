#include "screen/expression/expression_text.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "screen/text/bytes.h"

namespace jogeon {
namespace {

bool IsWordCharacter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}
bool IsOperator(char c) {
    return c == '&' || c == '|';
}

// The character at `index`, NUL outside the text.
char At(std::string_view text, std::size_t index) {
    return index < text.size() ? text[index] : '\0';
}
char Before(std::string_view text, std::size_t index) {
    return index == 0 ? '\0' : At(text, index - 1);
}

// The word NOT as `!`, where the parser takes it for one: with no letter, digit or '_' at either side.
std::string ReplaceNotWords(std::string_view upper) {
    constexpr std::string_view kNot = "NOT";
    std::string out;
    for (std::size_t i = 0; i < upper.size();) {
        const bool isNot = upper.substr(i).starts_with(kNot) && !IsWordCharacter(Before(upper, i)) &&
                           !IsWordCharacter(At(upper, i + kNot.size()));
        out += isNot ? '!' : upper[i];
        i += isNot ? kNot.size() : 1;
    }
    return out;
}

// Index of the bracket that the one at `index` belongs to, 0 if there is none. `step` is the way to go.
std::size_t PartnerIndex(std::string_view text, std::size_t index, int step) {
    const char same = text[index];
    const char partner = step < 0 ? '(' : ')';
    int depth = 1;
    for (auto i = static_cast<std::ptrdiff_t>(index) + step;
         i >= 0 && i < static_cast<std::ptrdiff_t>(text.size()); i += step) {
        const char c = text[static_cast<std::size_t>(i)];
        if (c == partner && --depth == 0) return static_cast<std::size_t>(i);
        if (c == same) ++depth;
    }
    return 0;
}

void EraseOperatorAt(std::string& text, std::size_t index) {
    if (IsOperator(At(text, index))) text.erase(index, 1);
}

// Takes the pair whose open bracket stands right before the letter at `at` away, then a `!` before the pair
// and an operator behind the letter. Gives the letter's new index.
std::size_t UnbracketLetter(std::string& text, std::size_t at) {
    const char letter = text[at];
    text = RemoveBracketFromOpen(std::move(text), static_cast<int>(at - 1));
    at = text.find(letter);
    if (Before(text, at) == '!') text.erase(--at, 1);
    EraseOperatorAt(text, at + 1);
    return at;
}

// A letter with its own `!` in front.
void RemoveNegatedLetter(std::string& text, std::size_t at) {
    text.erase(--at, 1);
    if (Before(text, at) == '(') {
        at = UnbracketLetter(text, at);
    } else if (IsOperator(Before(text, at))) {
        text.erase(--at, 1);
    }
    text.erase(at, 1);
    EraseOperatorAt(text, 0);
}

}  // namespace

std::string ToCompactForm(std::string_view display) {
    std::string text = ReplaceNotWords(UpperCase(display));
    text = ReplaceAll(text, "AND", "&");
    text = ReplaceAll(text, "OR", "|");
    std::erase(text, ' ');
    return text;
}

std::string ToDisplayForm(std::string_view compact) {
    return ReplaceAll(ReplaceAll(compact, "&", " and "), "|", " or ");
}

bool IsWhollyBracketed(std::string_view text) {
    if (!text.starts_with('(')) return false;
    const std::size_t close = PartnerIndex(text, 0, 1);
    return close != 0 && close == text.size() - 1;
}

std::string RemoveBracketFromClose(std::string text, int closeIndex) {
    const auto close = static_cast<std::size_t>(closeIndex);
    if (closeIndex < 0 || close >= text.size()) return text;
    const std::size_t open = PartnerIndex(text, close, -1);
    text.erase(close, 1);
    if (open != close) text.erase(open, 1);
    if (Before(text, open) == '!') text.erase(open - 1, 1);
    return text;
}

std::string RemoveBracketFromOpen(std::string text, int openIndex) {
    const auto open = static_cast<std::size_t>(openIndex);
    if (openIndex < 0 || open >= text.size()) return text;
    const std::size_t close = PartnerIndex(text, open, 1);
    text.erase(std::max(open, close), 1);
    if (close != open) text.erase(std::min(open, close), 1);
    return text;
}

bool RemoveLetter(std::string& compact, char letter) {
    if (letter < 'A' || letter > 'Z') return false;
    std::size_t at = compact.find(letter);
    if (at != std::string::npos && At(compact, at + 1) == ')') {
        compact = RemoveBracketFromClose(std::move(compact), static_cast<int>(at + 1));
        at = compact.find(letter);
    }
    if (at == std::string::npos) return false;

    const char before = Before(compact, at);
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

}  // namespace jogeon
