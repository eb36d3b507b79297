// The last day of a market, told again as ticks.
//
// The same market and seed give the same ticks, bit for bit. They are made as time goes on: what is held is
// one path for each stock, never the day. A stock without a bar on the last day has no tick.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <queue>
#include <utility>

#include "server/market/market.h"
#include "server/watch/feed.h"
#include "server/watch/stock_path.h"

namespace jogeon::watch {

class ReplayFeed : public Feed {
public:
    static constexpr std::uint64_t kSeed = 20'240'304;

    // Throws MarketError when the last day can't be read. The market need not outlive this.
    explicit ReplayFeed(const market::Market& market, std::uint64_t seed = kSeed);

    void Take(TimeOfDay until, std::vector<Tick>& ticks) override;
    bool Over() const override { return waiting_.empty(); }

private:
    // The time of a stock's next tick, and the stock.
    using Turn = std::pair<TimeOfDay, std::size_t>;

    std::vector<std::pair<int, StockPath>> paths_;  // with the stock's number
    std::priority_queue<Turn, std::vector<Turn>, std::greater<>> waiting_;
};

}  // namespace jogeon::watch
