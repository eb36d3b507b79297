// Family R: the first n stocks of the market's last day by some measure.

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/ranking.h"
#include "server/indicators/trading_value.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

// What is ranked, on the daily bar `bar`.
using Measure = Column (*)(const market::Market& market, const Bars& bars, int bar);

Column Volume(const market::Market&, const Bars& bars, int bar) {
    return ColumnAt(bars, PriceField::Volume, bar);
}

Column TradingValue(const market::Market&, const Bars& bars, int bar) {
    return MeanTradingValue(bars, bar, 1);
}

Column Change(const market::Market&, const Bars& bars, int bar) {
    return Combine(ColumnAt(bars, PriceField::Close, bar), ColumnAt(bars, PriceField::Close, bar - 1),
                   PercentChange);
}

Column Size(const market::Market& market, const Bars& bars, int bar) {
    Column value = ColumnAt(bars, PriceField::Close, bar);
    for (std::size_t i = 0; i < value.size(); ++i)
        value[i] = Capitalization(value[i], market.Instruments()[i].shares);
    return value;
}

Column VolumeChange(const market::Market&, const Bars& bars, int bar) {
    return Combine(ColumnAt(bars, PriceField::Volume, bar), ColumnAt(bars, PriceField::Volume, bar - 1),
                   [](double now, double before) { return Ratio(100 * now, before); });
}

// Role 50: '1' the highest first, '2' the lowest first. The value shown is the rank.
template <Measure measure>
Verdict EvaluateRank(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const bool highest = parameters.Choice(50, "12") == 0;
    const int count = parameters.Whole(60);
    const Bars& bars = day.GetMarket().BarsOf(Timeframe::Day);
    const Column ranks = RanksOf(measure(day.GetMarket(), bars, bars.Count() - 1), highest);
    return Judge(ranks, {}, [&](std::size_t i) { return ranks[i] <= count; });
}

constexpr int kRoles[] = {50, 60};

constexpr Indicator kIndicators[] = {
    {"080101", 'R', 810, 1, 0, kRoles, "Rank by volume.", EvaluateRank<Volume>},
    {"080102", 'R', 820, 1, 0, kRoles, "Rank by close * volume.", EvaluateRank<TradingValue>},
    {"080103", 'R', 830, 1, 0, kRoles, "Rank by change against the day before, in percent.",
     EvaluateRank<Change>},
    {"080104", 'R', 840, 1, 0, kRoles, "Rank by close * shares.", EvaluateRank<Size>},
    {"080105", 'R', 850, 1, 0, kRoles, "Rank by volume in percent of the day before.",
     EvaluateRank<VolumeChange>},
};

}  // namespace

std::span<const Indicator> RankIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
