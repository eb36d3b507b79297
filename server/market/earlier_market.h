// A market as it stood at the end of an earlier day: a view of the whole market, cut after that day.
#pragma once

#include <memory>

#include "server/market/market.h"

namespace jogeon::market {

// `whole` up to `date` (yyyymmdd), sharing its instruments and rows; null when no bar is as old as that.
// Costs the derivation of one week and one month. Throws MarketError if a row of these days is damaged.
std::shared_ptr<const Market> ViewAsOf(std::shared_ptr<const Market> whole, int date);

}  // namespace jogeon::market
