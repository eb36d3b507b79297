// The trading days of the generated market.
#pragma once

#include <vector>

namespace jogeon::market {

// The `count` trading days up to `last`, oldest first: weekdays but the exchange's holidays, of which those
// from October 2024 to October 2026 are known.
std::vector<int> TradingDaysUpTo(int last, int count);

}  // namespace jogeon::market
