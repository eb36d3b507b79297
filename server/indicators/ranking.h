// Ranks among the stocks of the market.
#pragma once

#include "server/indicators/market_day.h"

namespace jogeon::indicators {

// The rank of each instrument from 1, among those with a known value; kMissing for the others. Of equal
// values the lower code comes first, whichever end counts as the first.
Column RanksOf(const Column& values, bool highestFirst);

}  // namespace jogeon::indicators
