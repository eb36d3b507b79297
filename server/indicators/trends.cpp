// Family T, group 0103: bands, directional movement and the cloud.

#include <algorithm>
#include <cmath>

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/smoother.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

// mean + factor * deviation, of now and before.
Line Band(const Line& mean, const Line& deviation, double factor) {
    const auto at = [factor](double middle, double spread) { return middle + factor * spread; };
    return {Combine(mean.now, deviation.now, at), Combine(mean.before, deviation.before, at)};
}

// 010301
Verdict EvaluateBollinger(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int n = parameters.Whole(40);
    const double factor = parameters.Number(60);
    const Bars& bars = day.GetMarket().BarsOf(place.timeframe);
    const auto mean = MovingAverage(day, place, n, AverageKind::Simple);
    const auto deviation = PickLine(day.Get({"deviation", {n}, place.timeframe, place.bar},
                                            [&] {
                                                return Lines{LineOf(place.bar, [&](int bar) {
                                                    return Deviation(bars, PriceField::Close, bar, n);
                                                })};
                                            }),
                                    0);
    if (parameters.Variant() == 4) {
        const double widest = parameters.Number(61);
        const Column width = Combine(deviation->now, mean->now, [factor](double spread, double middle) {
            return Ratio(100 * (2 * factor * spread), middle);
        });
        return Judge(width, {}, [&](std::size_t i) { return width[i] <= widest; });
    }
    const bool upper = parameters.Variant() < 2;
    const bool upwards = parameters.Variant() == 0 || parameters.Variant() == 3;
    return JudgeCrossing(CloseLine(day, place), Band(*mean, *deviation, upper ? factor : -factor),
                         upwards ? Direction::Up : Direction::Down);
}

// One bar's directional movement and true range; missing for the first bar of a run.
struct Movement {
    explicit Movement(std::size_t instruments)
        : plus(instruments, kMissing), minus(instruments, kMissing), range(instruments, kMissing) {}

    void Set(const Bars& bars, int bar) {
        if (bar == 0) return;
        const auto high = bars.Row(PriceField::High, bar), low = bars.Row(PriceField::Low, bar);
        const auto before = bars.Row(PriceField::Close, bar - 1);
        const auto highBefore = bars.Row(PriceField::High, bar - 1);
        const auto lowBefore = bars.Row(PriceField::Low, bar - 1);
        for (std::size_t i = 0; i < range.size(); ++i) {
            const double up = high[i] - highBefore[i];
            const double down = lowBefore[i] - low[i];
            const bool known = up + down == up + down;
            plus[i] = known ? (up > down && up > 0 ? up : 0) : kMissing;
            minus[i] = known ? (down > up && down > 0 ? down : 0) : kMissing;
            const double gap = std::max(std::abs(high[i] - before[i]), std::abs(low[i] - before[i]));
            range[i] = known ? std::max(high[i] - low[i], gap) : kMissing;
        }
    }

    Column plus, minus, range;
};

// +DI, -DI and ADX.
struct DirectionalWalk {
    DirectionalWalk(std::size_t instruments, int n)
        : plus(Smoother::Wilder(instruments, n)),
          minus(plus),
          range(plus),
          average(plus),
          movement(instruments) {}

    void Step(const Bars& bars, int bar) {
        const auto percent = [](double part, double whole) { return Ratio(100 * part, whole); };
        movement.Set(bars, bar);
        plus.Add(movement.plus);
        minus.Add(movement.minus);
        range.Add(movement.range);
        const Column trueRange = range.Averages();
        plusIndex = Combine(plus.Averages(), trueRange, percent);
        minusIndex = Combine(minus.Averages(), trueRange, percent);
        average.Add(Combine(plusIndex, minusIndex, [](double up, double down) {
            return Ratio(100 * std::abs(up - down), up + down);
        }));
    }

    std::array<Column, 3> Columns() const { return {plusIndex, minusIndex, average.Averages()}; }

    Smoother plus, minus, range, average;
    Movement movement;
    Column plusIndex, minusIndex;
};

std::shared_ptr<const Lines> DirectionalLines(MarketDay& day, const Place& place, int n) {
    const LinesKey key{"directional movement", {n}, place.timeframe, place.bar};
    return day.Get(key, [&] { return WalkTo(day, key, DirectionalWalk(day.Instruments(), n)); });
}

// 010302
Verdict EvaluateDirectional(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const auto lines = DirectionalLines(day, PlaceOf(day, parameters), parameters.Whole(40));
    return JudgeCrossing((*lines)[0], (*lines)[1],
                         parameters.Variant() == 0 ? Direction::Up : Direction::Down);
}

// 010303
Verdict EvaluateAdx(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    return JudgeLevel((*DirectionalLines(day, PlaceOf(day, parameters), parameters.Whole(40)))[2],
                      parameters);
}

// The middle between the highest high and the lowest low of n bars.
Column Middle(const Bars& bars, int bar, int n) {
    return Combine(Highest(bars, PriceField::High, bar, n), Lowest(bars, PriceField::Low, bar, n),
                   [](double high, double low) { return (high + low) / 2; });
}

// Conversion and base line.
Lines EquilibriumLines(const Bars& bars, int bar, int conversion, int base) {
    return {LineOf(bar, [&](int b) { return Middle(bars, b, conversion); }),
            LineOf(bar, [&](int b) { return Middle(bars, b, base); })};
}

// The two leading spans that end at `bar`: the edges of the cloud `base` bars later.
Lines LeadingSpans(const Bars& bars, int bar, int conversion, int base, int span) {
    const auto first = [&](int b) {
        return Combine(Middle(bars, b, conversion), Middle(bars, b, base),
                       [](double a, double c) { return (a + c) / 2; });
    };
    return {LineOf(bar, first), LineOf(bar, [&](int b) { return Middle(bars, b, span); })};
}

// The close above or below the cloud: both leading spans of `base` bars before.
Verdict JudgeCloud(MarketDay& day, const Place& place, std::array<int, 3> periods, bool above) {
    const auto [conversion, base, span] = periods;
    const Bars& bars = day.GetMarket().BarsOf(place.timeframe);
    const int then = place.bar - base;
    const auto spans =
        day.Get({"cloud", {conversion, base, span}, place.timeframe, then},
                [&, c = conversion, b = base, s = span] { return LeadingSpans(bars, then, c, b, s); });
    const Column &first = (*spans)[0].now, &second = (*spans)[1].now;
    const int needed = base + std::max({conversion, base, span});
    const auto closes = day.Get({"unbroken close", {needed}, place.timeframe, place.bar}, [&] {
        return Lines{
            {OnlyUnbroken(bars, place.bar, needed, ColumnAt(bars, PriceField::Close, place.bar)), {}}};
    });
    const Column& close = closes->front().now;
    return Judge(close, {&first, &second}, [&](std::size_t i) {
        return above ? close[i] > std::max(first[i], second[i]) : close[i] < std::min(first[i], second[i]);
    });
}

// 010304
Verdict EvaluateEquilibrium(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int conversion = parameters.Whole(40), base = parameters.Whole(41);
    if (parameters.Variant() >= 2)
        return JudgeCloud(day, place, {conversion, base, parameters.Whole(42)}, parameters.Variant() == 2);
    const auto lines = day.Get({"equilibrium", {conversion, base}, place.timeframe, place.bar}, [&] {
        return EquilibriumLines(day.GetMarket().BarsOf(place.timeframe), place.bar, conversion, base);
    });
    return JudgeCrossing((*lines)[0], (*lines)[1],
                         parameters.Variant() == 0 ? Direction::Up : Direction::Down);
}

constexpr int kBandRoles[] = {10, 20, 30, 40, 60, 61};
constexpr int kCrossingRoles[] = {10, 20, 30, 40};
constexpr int kCloudRoles[] = {10, 20, 30, 40, 41, 42};

constexpr Indicator kIndicators[] = {
    {"010301", 'T', 210, 5, 2, kBandRoles,
     "Bollinger bands. J. Bollinger, Bollinger on Bollinger Bands, 2001.", EvaluateBollinger},
    {"010302", 'T', 220, 2, 2, kCrossingRoles, "+DI crosses -DI. Wilder, 1978.", EvaluateDirectional},
    {"010303", 'T', 230, kLevelVariants, 2, kLevelRoles, "Average directional index. Wilder, 1978.",
     EvaluateAdx},
    {"010304", 'T', 240, 4, 1, kCloudRoles,
     "Ichimoku equilibrium chart. G. Hosoda, Ichimoku Kinko Hyo, 1969.", EvaluateEquilibrium},
};

}  // namespace

std::span<const Indicator> TrendIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
