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

// The word NOT as `!`, where the parser takes it for one: with no letter, digit or '_' at either side.
std::string ReplaceNotWords(std::string_view upper) {
    constexpr std::string_view kNot = "NOT";
    std::string out;
    for (std::size_t i = 0; i < upper.size();) {
        const bool isNot = upper.substr(i).starts_with(kNot) && !IsWordCharacter(ByteAt(upper, i - 1)) &&
                           !IsWordCharacter(ByteAt(upper, i + kNot.size()));
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
    if (ByteAt(text, open - 1) == '!') text.erase(open - 1, 1);
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

}  // namespace jogeon
