// The groups that every user of a market sees: sectors of the two exchanges, and three indices by size.
//
// Codes begin with 0 거래소, 1 코스닥, 2 KOSPI200, 3 KOSTAR, 4 KRX100, and together they are fewer than the
// 200 that a request has room for. An index is made from the market itself, by market value on its last day:
// its groups are steps of rank, so that all of them together are the whole index.
#pragma once

#include "server/engine/stock_group.h"
#include "server/market/market.h"

namespace jogeon::engine {

struct MarketGroups {
    GroupList kospi;     // "001" to "025": the number of the sector in AllSectors(), from 1
    GroupList kosdaq;    // "101" to "125"
    GroupList kospi200;  // "201" ...
    GroupList kostar;    // "301" ...
    GroupList krx100;    // "401" ...

    // The group with this code, null if there is none.
    const StockGroup* Find(std::string_view code) const;
};

// A sector without a stock has no group.
MarketGroups BuildMarketGroups(const market::Market& market);

}  // namespace jogeon::engine
