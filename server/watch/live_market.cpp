#include "server/watch/live_market.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "server/market/calendar.h"
#include "server/market/period_bars.h"

namespace jogeon::watch {

using market::Bar;
using market::BarsInMemory;
using market::Timeframe;

namespace {

std::shared_ptr<const market::Market> DemandDays(std::shared_ptr<const market::Market> market) {
    if (market->LastDate() == 0) throw market::MarketError("the market has no day to watch");
    return market;
}

}  // namespace

LiveMarket::LiveMarket(std::shared_ptr<const market::Market> whole)
    : whole_(DemandDays(std::move(whole))),
      bars_{Form(Timeframe::Day), Form(Timeframe::Week), Form(Timeframe::Month)},
      today_(whole_->Instruments().size(), Bar{0, 0, 0, 0, -1}) {}

FormingBars LiveMarket::Form(Timeframe timeframe) const {
    const market::Bars& days = whole_->BarsOf(Timeframe::Day);
    const int earlier = days.Count() - 1;
    const int today = whole_->LastDate();
    const bool begun = earlier > 0 && market::PeriodOf(timeframe, days.Date(earlier - 1)) ==
                                          market::PeriodOf(timeframe, today);
    return FormingBars(whole_->BarsOf(timeframe), begun ? market::DeriveLastPeriod(days, earlier, timeframe)
                                                        : BarsInMemory(days.Instruments(), {today}));
}

void LiveMarket::Take(const Tick& tick) {
    const auto stock = static_cast<std::size_t>(tick.stock);
    const bool possible = stock < today_.size() && tick.price > 0 && std::isfinite(tick.price) &&
                          tick.volume >= 0 && std::isfinite(tick.volume);
    if (!possible) return;
    Bar& bar = today_[stock];
    if (bar.volume < 0) bar = {tick.price, tick.price, tick.price, tick.price, 0};
    bar.high = std::max(bar.high, tick.price);
    bar.low = std::min(bar.low, tick.price);
    bar.close = tick.price;
    bar.volume += tick.volume;
    for (FormingBars& bars : bars_) bars.Join(stock, bar);
}

std::shared_ptr<const market::Market> LiveMarket::AsOf(int date) const {
    if (date >= LastDate()) return shared_from_this();
    return whole_->AsOf(date);
}

}  // namespace jogeon::watch
