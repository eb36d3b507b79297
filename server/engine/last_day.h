// The last bar of a market, and what is measured on it to sort stocks by size.
#pragma once

#include <cstddef>
#include <vector>

#include "server/market/market.h"

namespace jogeon::engine {

// Value of a field on the last day, or `daysAgo` before it; kMissing where there is no such bar.
double DayValue(const market::Market& market, market::PriceField field, std::size_t stock, int daysAgo = 0);

// A stock without a bar on the market's last day isn't traded: not yet, or no longer.
bool IsTraded(const market::Market& market, std::size_t stock);

// Shares times the last close, in won; kMissing where either is unknown.
double MarketValue(const market::Market& market, std::size_t stock);

// Mean of a field over the last `days` days that have a bar, kMissing where there is none.
double MeanOfDays(const market::Market& market, market::PriceField field, std::size_t stock, int days);

// The traded stocks, the largest market value first. Stocks whose value is unknown follow, the largest
// turnover first; among equals the order of codes stands.
std::vector<std::size_t> StocksBySize(const market::Market& market);

}  // namespace jogeon::engine
