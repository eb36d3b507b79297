#include "server/engine/search.h"

#include <map>

#include "server/engine/expression.h"
#include "server/indicators/indicator.h"

namespace jogeon::engine {
namespace {

using indicators::BitSet;
using indicators::FindIndicator;
using indicators::Indicator;
using indicators::MarketDay;
using indicators::Verdict;

// A condition in use, beside the indicator that judges it.
struct Step {
    const DecodedBlock* condition;
    const Indicator* indicator;
    bool inExpression;
};

Expression ParseExpression(const std::string& text) {
    std::optional<Expression> parsed = Expression::Parse(text);
    if (!parsed) throw BadSearch(Quoted(text) + " is no expression over condition letters");
    return *std::move(parsed);
}

std::map<char, Step> PlanSteps(const SearchOrder& order, const Expression& expression) {
    std::map<char, Step> steps;
    for (const DecodedBlock& condition : order.conditions) {
        if (!condition.inUse) continue;
        const Indicator* indicator = FindIndicator(condition.key);
        if (!indicator || indicator->family != condition.family)
            throw BadSearch("there is no indicator " + Quoted(condition.key));
        const bool needed = expression.Letters().find(condition.letter) != std::string::npos;
        if (!steps.emplace(condition.letter, Step{&condition, indicator, needed}).second)
            throw BadSearch("condition " + Quoted({&condition.letter, 1}) + " is given twice");
    }
    for (char letter : expression.Letters())
        if (!steps.count(letter)) throw BadSearch(std::string("there is no condition ") + letter);
    return steps;
}

std::map<char, Verdict> Judge(MarketDay& day, const std::map<char, Step>& steps) {
    std::map<char, Verdict> verdicts;
    for (const auto& [letter, step] : steps)
        if (step.inExpression || step.condition->showValue)
            verdicts.emplace(letter, step.indicator->evaluate(day, *step.condition));
    return verdicts;
}

ValueColumn ValuesOf(const Step& step, const Verdict& verdict, const std::vector<std::uint32_t>& matches) {
    ValueColumn column{step.condition->letter, step.indicator->decimals, {}};
    column.values.reserve(matches.size());
    for (std::uint32_t stock : matches) column.values.push_back(verdict.value[stock]);
    return column;
}

}  // namespace

SearchResult Search(MarketDay& day, const MarketGroups& groups, const UserGroups& user,
                    const SearchOrder& order) {
    const Expression expression = ParseExpression(order.expression);
    const std::map<char, Step> steps = PlanSteps(order, expression);
    const market::Market& market = day.GetMarket();
    const BitSet universe =
        Narrow(market, BuildUniverse(market, groups, user, order.target), order.scope, order.priorCodes);
    const std::map<char, Verdict> verdicts = Judge(day, steps);

    SearchResult result;
    (expression.Evaluate(verdicts).truth & universe).ForEach([&](std::size_t stock) {
        result.matches.push_back(static_cast<std::uint32_t>(stock));
    });
    for (const DecodedBlock& condition : order.conditions)
        if (condition.inUse && condition.showValue)
            result.values.push_back(
                ValuesOf(steps.at(condition.letter), verdicts.at(condition.letter), result.matches));
    return result;
}

}  // namespace jogeon::engine
