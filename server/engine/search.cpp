#include "server/engine/search.h"

#include "server/engine/condition_plan.h"

namespace jogeon::engine {
namespace {

using indicators::BitSet;
using indicators::Verdict;

ValueColumn ValuesOf(const ConditionPlan::Step& step, const Verdict& verdict,
                     const std::vector<std::uint32_t>& matches) {
    ValueColumn column{step.condition.letter, step.indicator->decimals, {}};
    column.values.reserve(matches.size());
    for (std::uint32_t stock : matches) column.values.push_back(verdict.value[stock]);
    return column;
}

}  // namespace

SearchResult Search(indicators::MarketDay& day, const MarketGroups& groups, const UserGroups& user,
                    const SearchOrder& order) {
    const ConditionPlan plan(order.expression, order.conditions);
    const market::Market& market = day.GetMarket();
    const BitSet universe =
        Narrow(market, BuildUniverse(market, groups, user, order.target), order.scope, order.priorCodes);
    const std::map<char, Verdict> verdicts = plan.Judge(day);

    SearchResult result;
    (plan.Combine(verdicts).truth & universe).ForEach([&](std::size_t stock) {
        result.matches.push_back(static_cast<std::uint32_t>(stock));
    });
    for (const DecodedBlock& condition : order.conditions)
        if (condition.inUse && condition.showValue)
            result.values.push_back(
                ValuesOf(plan.Steps().at(condition.letter), verdicts.at(condition.letter), result.matches));
    return result;
}

}  // namespace jogeon::engine
