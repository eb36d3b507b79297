#include "server/watch/replay_feed.h"

#include <cmath>

namespace jogeon::watch {

using market::PriceField;

ReplayFeed::ReplayFeed(const market::Market& market, std::uint64_t seed) {
    const market::Bars& days = market.BarsOf(market::Timeframe::Day);
    const int last = days.Count() - 1;
    for (int stock = 0; last >= 0 && stock < days.Instruments(); ++stock) {
        const auto value = [&](PriceField field) {
            return days.Row(field, last)[static_cast<std::size_t>(stock)];
        };
        const market::Bar day{value(PriceField::Open), value(PriceField::High), value(PriceField::Low),
                              value(PriceField::Close), value(PriceField::Volume)};
        if (std::isnan(day.close)) continue;
        paths_.emplace_back(stock,
                            StockPath(day, market::RandomNumbers(seed, static_cast<std::uint64_t>(stock))));
        waiting_.emplace(paths_.back().second.Time(), paths_.size() - 1);
    }
}

void ReplayFeed::Take(TimeOfDay until, std::vector<Tick>& ticks) {
    while (!waiting_.empty() && waiting_.top().first <= until) {
        const std::size_t turn = waiting_.top().second;
        waiting_.pop();
        auto& [stock, path] = paths_[turn];
        ticks.push_back(path.Next());
        ticks.back().stock = stock;
        if (!path.Over()) waiting_.emplace(path.Time(), turn);
    }
}

}  // namespace jogeon::watch
