#include "server/engine/condition_plan.h"

#include <utility>

#include "server/engine/universe.h"

namespace jogeon::engine {
namespace {

Expression ParseExpression(const std::string& text) {
    std::optional<Expression> parsed = Expression::Parse(text);
    if (!parsed) throw BadSearch(Quoted(text) + " is no expression over condition letters");
    return *std::move(parsed);
}

}  // namespace

ConditionPlan::ConditionPlan(const std::string& expression, const std::vector<DecodedBlock>& conditions)
    : expression_(ParseExpression(expression)) {
    for (const DecodedBlock& condition : conditions) {
        if (!condition.inUse) continue;
        const indicators::Indicator* indicator = indicators::FindIndicator(condition.key);
        if (!indicator || indicator->family != condition.family)
            throw BadSearch("there is no indicator " + Quoted(condition.key));
        const bool needed = expression_.Letters().find(condition.letter) != std::string::npos;
        if (!steps_.emplace(condition.letter, Step{condition, indicator, needed}).second)
            throw BadSearch("condition " + Quoted({&condition.letter, 1}) + " is given twice");
    }
    for (char letter : expression_.Letters())
        if (!steps_.count(letter)) throw BadSearch(std::string("there is no condition ") + letter);
}

std::map<char, indicators::Verdict> ConditionPlan::Judge(indicators::MarketDay& day) const {
    std::map<char, indicators::Verdict> verdicts;
    for (const auto& [letter, step] : steps_)
        if (step.inExpression || step.condition.showValue)
            verdicts.emplace(letter, step.indicator->evaluate(day, step.condition));
    return verdicts;
}

}  // namespace jogeon::engine
