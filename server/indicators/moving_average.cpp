#include "server/indicators/moving_average.h"

#include "server/indicators/smoother.h"

namespace jogeon::indicators {

namespace {

struct AverageWalk {
    void Step(const Bars& bars, int bar) { smoother.Add(bars.Row(PriceField::Close, bar)); }
    std::array<Column, 1> Columns() const { return {smoother.Averages()}; }

    Smoother smoother;
};

}  // namespace

AverageKind AverageKindOf(const Parameters& parameters) {
    return static_cast<AverageKind>(parameters.Choice(50, "01"));
}

std::shared_ptr<const Line> MovingAverage(MarketDay& day, const Place& place, int n, AverageKind kind) {
    const Bars& bars = day.GetMarket().BarsOf(place.timeframe);
    if (kind == AverageKind::Simple)
        return PickLine(day.Get({"simple average", {n}, place.timeframe, place.bar},
                                [&] {
                                    return Lines{LineOf(place.bar, [&](int bar) {
                                        return Mean(bars, PriceField::Close, bar, n);
                                    })};
                                }),
                        0);
    const LinesKey key{"exponential average", {n}, place.timeframe, place.bar};
    return PickLine(
        day.Get(key,
                [&] { return WalkTo(day, key, AverageWalk{Smoother::Exponential(day.Instruments(), n)}); }),
        0);
}

Line CloseLine(const MarketDay& day, const Place& place) {
    const Bars& bars = day.GetMarket().BarsOf(place.timeframe);
    return LineOf(place.bar, [&](int bar) { return ColumnAt(bars, PriceField::Close, bar); });
}

}  // namespace jogeon::indicators
