// The days on which the conditions of a search were true of one stock.
//
// Relies on the indicators, which judge all days of the stock at once (market::StockHistory). Only conditions
// that rank stocks need the whole market, day by day, and only on days that nothing else decides.
#pragma once

#include <memory>
#include <vector>

#include "server/engine/condition_plan.h"

namespace jogeon::engine {

// The dates, ascending, on which the stock with this index had a bar and `plan` was true of it, as a search
// on the market as of that date has it. Throws indicators::BadCondition for parameters that make no sense.
std::vector<int> TrueDays(const market::Market& market, int stock, const ConditionPlan& plan);

}  // namespace jogeon::engine
