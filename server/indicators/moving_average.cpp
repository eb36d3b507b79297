#include "server/indicators/moving_average.h"

#include "server/indicators/smoother.h"

namespace jogeon::indicators {

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
    return PickLine(day.Get({"exponential average", {n}, place.timeframe, place.bar},
                            [&] {
                                Smoother smoother = Smoother::Exponential(day.Instruments(), n);
                                return WalkTo<1>(
                                    place.bar, day.Instruments(),
                                    [&](int bar) { smoother.Add(bars.Row(PriceField::Close, bar)); },
                                    [&] { return std::array{smoother.Averages()}; });
                            }),
                    0);
}

Line CloseLine(const MarketDay& day, const Place& place) {
    const Bars& bars = day.GetMarket().BarsOf(place.timeframe);
    return LineOf(place.bar, [&](int bar) { return ColumnAt(bars, PriceField::Close, bar); });
}

}  // namespace jogeon::indicators
