// Ranks among the stocks of the market.
#pragma once

#include "screen/transactions/condition_block.h"
#include "server/indicators/market_day.h"

namespace jogeon::indicators {

// The rank of each instrument from 1, among those with a known value; kMissing for the others. Of equal
// values the lower code comes first, whichever end counts as the first.
Column RanksOf(const Column& values, bool highestFirst);

// Whether the verdict on a stock depends on other stocks. Every other condition looks at one stock alone.
bool RanksStocks(const DecodedBlock& condition);

}  // namespace jogeon::indicators
