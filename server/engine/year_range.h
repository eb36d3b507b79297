// The highest and lowest price of the last 52 weeks, for every stock at once.
//
// Computed once for a market day and kept with its other lines.
#pragma once

#include <memory>

#include "server/indicators/market_day.h"

namespace jogeon::engine {

inline constexpr std::size_t kYearHigh = 0;
inline constexpr std::size_t kYearLow = 1;

// Two lines, of which only `now` is filled: kMissing for a stock without a bar in that time. Days on which
// the stock wasn't traded are passed over.
std::shared_ptr<const indicators::Lines> YearRange(indicators::MarketDay& day);

}  // namespace jogeon::engine
