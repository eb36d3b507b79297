#include "screen/transactions/sequential_request.h"

#include <algorithm>

#include "screen/text/cp949.h"

namespace jogeon {
namespace {

// The step replaces the results of the step before, as a search of the whole target does.
constexpr char kWholeScope = '0';

struct CutExpression {
    std::string text;
    int letters = 0;  // as many as were asked for, or all there are
};

CutExpression CutBehindLetter(const std::string& compact, int letter) {
    int letters = 0;
    std::size_t end = 0;
    for (; end < compact.size() && letters < letter; ++end) {
        if (compact[end] >= 'A' && compact[end] <= 'Z') ++letters;
    }
    return {letters == letter ? compact.substr(0, end) : compact, letters};
}

}  // namespace

std::optional<std::string> BuildSequentialRequest(const SearchInputs& inputs, const ColumnTables& columns,
                                                  host::Questions& questions) {
    if (inputs.conditions.empty()) return std::nullopt;
    if (inputs.expressionText.find_first_of("()") != std::string::npos) {
        questions.Ask({"조건식에 괄호가 포함되어 있으면, [순차검색]을 사용할 수 없습니다."_cp949,
                       "순차검색"_cp949, host::Icon::Information, host::Buttons::Ok});
        return std::nullopt;
    }
    const auto expression = CompactExpression(inputs.expressionText, inputs.checkExpression, questions);
    if (!expression) return std::nullopt;
    auto blocks = CheckedConditions(inputs.conditions);
    if (blocks.empty()) return std::nullopt;

    const int step = inputs.nextSequenceStep();
    const CutExpression cut = CutBehindLetter(*expression, step);
    blocks.resize(std::min(blocks.size(), static_cast<std::size_t>(step)));
    return ComposeStart(inputs.window, kWholeScope,
                        ComposeConditionSet(inputs.header, cut.text, cut.letters, blocks),
                        SelectedFids(columns, 1));
}

}  // namespace jogeon
