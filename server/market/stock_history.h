// One stock's bars taken out of a market, and its many days as a market of their own.
//
// In a market of days each "stock" is the one stock as it stood at the end of one day. So whatever judges all
// stocks of a market at its last bar judges all days of one stock, with the same code and the same result.
#pragma once

#include <memory>

#include "server/market/bars_in_memory.h"

namespace jogeon::market {

class StockHistory {
public:
    // `stock` is its index in the market, which isn't needed any more afterwards. Throws MarketError if a row
    // of the market is damaged.
    StockHistory(const Market& market, int stock);

    const Instrument& Stock() const { return stock_; }

    // The stock's bars, at all dates of the market: one value in each row.
    const BarsInMemory& BarsOf(Timeframe timeframe) const {
        return timeframe == Timeframe::Day ? days_ : timeframe == Timeframe::Week ? weeks_ : months_;
    }
    int Days() const { return days_.Count(); }

    // The days from the one with index `first`, `count` of them, as the "stocks" of a market whose last bar
    // is the last of these days. Each of them has the code of the stock, and is on that last bar as old as
    // the stock was on its day; beyond the stock's first bar all is missing. AsOf gives null. The history
    // outlives it. `count` is at least 1.
    std::shared_ptr<const Market> DaysAsStocks(int first, int count) const;

private:
    Instrument stock_;
    BarsInMemory days_;
    BarsInMemory weeks_;
    BarsInMemory months_;
};

}  // namespace jogeon::market
