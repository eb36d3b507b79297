// The bars of one generated stock.
#pragma once

#include <span>
#include <vector>

#include "server/market/bar.h"
#include "server/market/generated_factors.h"

namespace jogeon::market {

// Days from `first` on.
struct DaySpan {
    int first;
    int count;

    bool Holds(int day) const { return day >= first && day < first + count; }
};

struct StockModel {
    int startPrice;              // won, before the first bar
    double volatility;           // of a day, of the stock itself, as a part of the price
    double dailyVolume;          // shares on a typical day
    double shock;                // the chance of a day with sudden news
    double pull;                 // how strongly the price is drawn back to where it started; 0: not at all
    int firstDay = 0;            // of the listing; no bars before it
    std::vector<DaySpan> halts;  // flat bars
    std::vector<DaySpan> gaps;   // no bars
};

enum class DayKind { Missing, Halted, Traded };

struct GeneratedDay {
    DayKind kind = DayKind::Missing;
    Bar bar;
};

// One entry for each day of `common`, which is what the stock's market and sector do, before the stock's own
// moves. Every price is on a tick and within the day's limit.
std::vector<GeneratedDay> MakePrices(const StockModel& model, std::span<const double> common,
                                     RandomNumbers random);

}  // namespace jogeon::market
