// The conditions and the expression of a search, planned once and judged on any market day.
//
// Relies on the indicators for the verdict of each condition and on Expression for combining them. It knows
// no universe.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "screen/transactions/condition_block.h"
#include "server/engine/expression.h"
#include "server/indicators/market_day.h"

namespace jogeon::engine {

class ConditionPlan {
public:
    // `expression` is the compact form; conditions stand in list order, and those not in use are passed over.
    // Throws BadSearch for an expression that is none, for one of its letters without a condition, for a
    // letter given twice and for an unknown indicator.
    ConditionPlan(const std::string& expression, const std::vector<DecodedBlock>& conditions);

    // The verdicts of the conditions that the expression has or that show their values. Throws
    // indicators::BadCondition for parameters that make no sense.
    std::map<char, indicators::Verdict> Judge(indicators::MarketDay& day) const;

    // The whole expression's truth, from the verdicts that Judge gave.
    Truth Combine(const std::map<char, indicators::Verdict>& verdicts) const {
        return expression_.Evaluate(verdicts);
    }

    // A condition in use, beside the indicator that judges it.
    struct Step {
        DecodedBlock condition;
        const indicators::Indicator* indicator;
        bool inExpression;
    };
    const std::map<char, Step>& Steps() const { return steps_; }

private:
    Expression expression_;
    std::map<char, Step> steps_;
};

}  // namespace jogeon::engine
