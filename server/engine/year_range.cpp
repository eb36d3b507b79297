#include "server/engine/year_range.h"

#include <cmath>
#include <span>

namespace jogeon::engine {
namespace {

using indicators::Column;
using indicators::Lines;
using indicators::LinesKey;
using indicators::MarketDay;
using market::Bars;
using market::kMissing;
using market::PriceField;

constexpr int kOneYear = 10000;  // in dates written as yyyymmdd

Lines ComputeYearRange(const market::Market& market) {
    const Bars& days = market.BarsOf(market::Timeframe::Day);
    Column high(market.Instruments().size(), kMissing);
    Column low(high);
    for (int bar = days.Count() - 1; bar >= 0 && days.Date(bar) > market.LastDate() - kOneYear; --bar) {
        const std::span<const double> highs = days.Row(PriceField::High, bar);
        const std::span<const double> lows = days.Row(PriceField::Low, bar);
        for (std::size_t i = 0; i < high.size(); ++i) {
            high[i] = std::fmax(high[i], highs[i]);  // fmax and fmin take the other number for a NaN
            low[i] = std::fmin(low[i], lows[i]);
        }
    }
    Lines lines(2);
    lines[kYearHigh].now = std::move(high);
    lines[kYearLow].now = std::move(low);
    return lines;
}

}  // namespace

std::shared_ptr<const Lines> YearRange(MarketDay& day) {
    const LinesKey key{"the last 52 weeks' range", {}, market::Timeframe::Day, 0};
    return day.Get(key, [&day] { return ComputeYearRange(day.GetMarket()); });
}

}  // namespace jogeon::engine
