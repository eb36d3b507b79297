// An independent market of the bars that ticks have formed so far, for the tests of what forms them in place.
#pragma once

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <vector>

#include "server/market/market_builder.h"
#include "server/watch/feed.h"

namespace jogeon::test {

// One bar of a stock, without a close where it is missing.
inline market::Bar BarOf(const market::Market& market, int day, std::size_t stock) {
    const market::Bars& days = market.BarsOf(market::Timeframe::Day);
    const auto value = [&](market::PriceField field) { return days.Row(field, day)[stock]; };
    return {value(market::PriceField::Open), value(market::PriceField::High), value(market::PriceField::Low),
            value(market::PriceField::Close), value(market::PriceField::Volume)};
}

// The stocks of a market at every `step`-th place, with their first `days` days.
inline market::MarketBuilder Excerpt(const market::Market& market, int days, std::size_t step = 1) {
    market::MarketBuilder builder;
    for (std::size_t stock = 0; stock < market.Instruments().size(); stock += step) {
        const int number = builder.AddInstrument(market.Instruments()[stock]);
        for (int day = 0; day < days; ++day) {
            const market::Bar bar = BarOf(market, day, stock);
            if (!std::isnan(bar.close))
                builder.AddFittedBar(number, market.BarsOf(market::Timeframe::Day).Date(day), bar);
        }
    }
    return builder;
}

class FormingDay {
public:
    // The last day of `whole` is formed anew.
    explicit FormingDay(const market::Market& whole)
        : earlier_(Excerpt(whole, whole.BarsOf(market::Timeframe::Day).Count() - 1)),
          date_(whole.LastDate()) {}

    void Take(const std::vector<watch::Tick>& ticks) {
        for (const watch::Tick& tick : ticks) {
            const auto [at, first] = bars_.emplace(
                tick.stock, market::Bar{tick.price, tick.price, tick.price, tick.price, tick.volume});
            if (first) continue;
            market::Bar& bar = at->second;
            bar = {bar.open, std::max(bar.high, tick.price), std::min(bar.low, tick.price), tick.price,
                   bar.volume + tick.volume};
        }
    }

    // Its stocks stand where the whole market has them, which is in order of code.
    std::shared_ptr<const market::Market> Build() const {
        market::MarketBuilder builder = earlier_;
        for (const auto& [stock, bar] : bars_) builder.AddFittedBar(stock, date_, bar);
        return builder.Build();
    }

private:
    const market::MarketBuilder earlier_;
    const int date_;
    std::map<int, market::Bar> bars_;
};

}  // namespace jogeon::test
