#include "screen/expression/operator_hover.h"

#include <algorithm>
#include <array>

#include "screen/expression/word_selection.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

struct OperatorWord {
    OperatorKind kind;
    std::string_view upper;
    std::string_view lower;
    OperatorKind toggled;
};

constexpr std::array kOperators{
    OperatorWord{OperatorKind::And, "AND", "and", OperatorKind::Or},
    OperatorWord{OperatorKind::Or, "OR", "or", OperatorKind::And},
    OperatorWord{OperatorKind::Ampersand, "&", "&", OperatorKind::Bar},
    OperatorWord{OperatorKind::Bar, "|", "|", OperatorKind::Ampersand},
};

OperatorKind KindOf(std::string_view word) {
    const std::string upper = UpperCase(word);
    for (const OperatorWord& each : kOperators) {
        if (each.upper == upper) return each.kind;
    }
    return OperatorKind::None;
}

const OperatorWord& WordOf(OperatorKind kind) {
    return *std::find_if(kOperators.begin(), kOperators.end(),
                         [kind](const OperatorWord& each) { return each.kind == kind; });
}

int Length(std::string_view word) {
    return static_cast<int>(word.size());
}

}  // namespace

void TestHover(std::string_view text, int index, OperatorHover& hover) {
    if (index < 0 || index >= static_cast<int>(text.size())) return;
    const int start = WordBoundary(text, index, true);
    const int end = WordBoundary(text, index, false);
    const auto from = static_cast<std::size_t>(start);
    hover = {KindOf(text.substr(from, static_cast<std::size_t>(end) - from)), {start, end}};
}

bool MeansAnd(OperatorKind kind) {
    return kind == OperatorKind::And || kind == OperatorKind::Ampersand;
}

OperatorToggle ToggleOf(const OperatorHover& hover) {
    const OperatorWord& now = WordOf(hover.kind);
    const OperatorWord& next = WordOf(now.toggled);
    const int start = hover.place.start;
    return {{start, start + Length(now.lower)}, next.lower, {next.kind, {start, start + Length(next.lower)}}};
}

}  // namespace jogeon
