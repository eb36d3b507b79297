// Weekly and monthly bars, derived from daily ones.
//
// A period has the open of its first known day, the highest high, the lowest low, the close of its last known
// day and the sum of the volumes; a stock without a known day in it is missing. Its date is the last trading
// day of the market in it.
#pragma once

#include "server/market/bars_in_memory.h"

namespace jogeon::market {

// The bars of `timeframe` over the first `count` bars of `days`.
BarsInMemory DerivePeriods(const Bars& days, int count, Timeframe timeframe);

// The last of them alone, as one bar. `count` is at least 1.
BarsInMemory DeriveLastPeriod(const Bars& days, int count, Timeframe timeframe);

}  // namespace jogeon::market
