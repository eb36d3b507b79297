// Family T, group 0102: oscillators of the price.

#include <cmath>
#include <functional>

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/smoother.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

// 100 * gain / (gain + loss) of the smoothed gains and losses from close to close.
struct StrengthWalk {
    StrengthWalk(std::size_t instruments, int n)
        : gains(Smoother::Wilder(instruments, n)), losses(gains), gain(instruments), loss(instruments) {}

    void Step(const Bars& bars, int bar) {
        if (bar == 0) return;  // a change needs two closes
        const std::span<const double> close = bars.Row(PriceField::Close, bar);
        const std::span<const double> previous = bars.Row(PriceField::Close, bar - 1);
        for (std::size_t i = 0; i < close.size(); ++i) {
            const double change = close[i] - previous[i];
            const double fall = -change;
            gain[i] = change < 0 ? 0 : change;
            loss[i] = fall < 0 ? 0 : fall;
        }
        gains.Add(gain);
        losses.Add(loss);
    }

    std::array<Column, 1> Columns() const {
        return {Combine(gains.Averages(), losses.Averages(),
                        [](double up, double down) { return Ratio(100 * up, up + down); })};
    }

    Smoother gains, losses;
    Column gain, loss;
};

// 010201
Verdict EvaluateRsi(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int n = parameters.Whole(40);
    const LinesKey key{"rsi", {n}, place.timeframe, place.bar};
    const auto lines = day.Get(key, [&] { return WalkTo(day, key, StrengthWalk(day.Instruments(), n)); });
    return JudgeLevel(lines->front(), parameters);
}

// Where the close stands between the lowest low and the highest high of n bars, 0 to 100.
Column PlaceInRange(const Bars& bars, int bar, int n) {
    const Column high = Highest(bars, PriceField::High, bar, n);
    const Column low = Lowest(bars, PriceField::Low, bar, n);
    Column place = ColumnAt(bars, PriceField::Close, bar);
    for (std::size_t i = 0; i < place.size(); ++i)
        place[i] = Ratio(100 * (place[i] - low[i]), high[i] - low[i]);
    return place;
}

// The plain mean of columns[first] to columns[first + n - 1].
Column MeanOf(const std::vector<Column>& columns, std::size_t first, int n) {
    Column sum = columns[first];
    for (int k = 1; k < n; ++k)
        sum = Combine(sum, columns[first + static_cast<std::size_t>(k)], std::plus<>());
    for (double& value : sum) value /= n;
    return sum;
}

// Slow %K and slow %D. Columns run from the oldest bar to `bar`.
Lines SlowStochastic(const Bars& bars, int bar, int n, int slowK, int slowD) {
    std::vector<Column> fast, slow, signal;
    for (int b = bar - slowK - slowD + 1; b <= bar; ++b) fast.push_back(PlaceInRange(bars, b, n));
    for (std::size_t b = 0; b <= static_cast<std::size_t>(slowD); ++b) slow.push_back(MeanOf(fast, b, slowK));
    for (std::size_t b = 0; b < 2; ++b) signal.push_back(MeanOf(slow, b, slowD));
    return {{slow.back(), slow[slow.size() - 2]}, {signal[1], signal[0]}};
}

// 010203
Verdict EvaluateStochastic(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const bool crossing = parameters.Variant() < 2;
    const int n = parameters.Whole(40), slowK = parameters.Whole(41, 1, 99);
    const int slowD = crossing ? parameters.Whole(42, 1, 99) : 1;
    const auto lines = day.Get({"stochastic", {n, slowK, slowD}, place.timeframe, place.bar}, [&] {
        return SlowStochastic(day.GetMarket().BarsOf(place.timeframe), place.bar, n, slowK, slowD);
    });
    const Line& k = (*lines)[0];
    if (crossing)
        return JudgeCrossing(k, (*lines)[1], parameters.Variant() == 0 ? Direction::Up : Direction::Down);
    const double level = parameters.Number(60);
    return parameters.Variant() == 2 ? Judge(k.now, {}, [&](auto i) { return k.now[i] <= level; })
                                     : Judge(k.now, {}, [&](auto i) { return k.now[i] >= level; });
}

// The sum of high, low and close: three times the typical price. The factor cancels in the index, and sums
// of whole prices are exact.
Column TypicalSum(const Bars& bars, int bar) {
    Column sum = ColumnAt(bars, PriceField::High, bar);
    sum = Combine(sum, ColumnAt(bars, PriceField::Low, bar), std::plus<>());
    return Combine(sum, ColumnAt(bars, PriceField::Close, bar), std::plus<>());
}

Column CommodityChannel(const Bars& bars, int bar, int n) {
    if (bar < n - 1) return ColumnAt(bars, PriceField::Close, -1);
    std::vector<Column> typical;
    for (int b = bar - n + 1; b <= bar; ++b) typical.push_back(TypicalSum(bars, b));
    const Column mean = MeanOf(typical, 0, n);
    Column deviation(mean.size());
    for (const Column& column : typical)
        for (std::size_t i = 0; i < mean.size(); ++i) deviation[i] += std::abs(column[i] - mean[i]);
    Column index = typical.back();
    for (std::size_t i = 0; i < index.size(); ++i)
        index[i] = Ratio(index[i] - mean[i], 0.015 * (deviation[i] / n));
    return index;
}

// The close of the bar, and that of n bars before, in one unbroken run.
Column RateOfChange(const Bars& bars, int bar, int n) {
    Column change = Combine(ColumnAt(bars, PriceField::Close, bar),
                            ColumnAt(bars, PriceField::Close, bar - n), PercentChange);
    return OnlyUnbroken(bars, bar, n + 1, std::move(change));
}

// What the three indicators of a window have in common: a line from `at`(n, bar), compared with a level.
template <typename At>
Verdict EvaluateWindow(MarketDay& day, const DecodedBlock& condition, std::string_view series, At at) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int n = parameters.Whole(40);
    const auto lines = day.Get({series, {n}, place.timeframe, place.bar}, [&] {
        return Lines{LineOf(place.bar, [&](int bar) { return at(place.timeframe, bar, n); })};
    });
    return JudgeLevel(lines->front(), parameters);
}

// 010204
Verdict EvaluateCci(MarketDay& day, const DecodedBlock& condition) {
    return EvaluateWindow(day, condition, "cci", [&](Timeframe timeframe, int bar, int n) {
        return CommodityChannel(day.GetMarket().BarsOf(timeframe), bar, n);
    });
}

// 010205
Verdict EvaluateWilliams(MarketDay& day, const DecodedBlock& condition) {
    return EvaluateWindow(day, condition, "williams", [&](Timeframe timeframe, int bar, int n) {
        const Bars& bars = day.GetMarket().BarsOf(timeframe);
        const Column high = Highest(bars, PriceField::High, bar, n);
        const Column low = Lowest(bars, PriceField::Low, bar, n);
        Column range = ColumnAt(bars, PriceField::Close, bar);
        for (std::size_t i = 0; i < range.size(); ++i)
            range[i] = Ratio(100 * (range[i] - high[i]), high[i] - low[i]);
        return range;
    });
}

// 010206
Verdict EvaluateRateOfChange(MarketDay& day, const DecodedBlock& condition) {
    return EvaluateWindow(day, condition, "roc", [&](Timeframe timeframe, int bar, int n) {
        return RateOfChange(day.GetMarket().BarsOf(timeframe), bar, n);
    });
}

constexpr int kStochasticRoles[] = {10, 20, 30, 40, 41, 42, 60};

constexpr Indicator kIndicators[] = {
    {"010201", 'T', 110, kLevelVariants, 2, kLevelRoles,
     "Relative strength index. J. W. Wilder, New Concepts in Technical Trading Systems, 1978.", EvaluateRsi},
    {"010203", 'T', 130, 4, 2, kStochasticRoles,
     "Slow stochastic. G. C. Lane, Lane's Stochastics, Technical Analysis of Stocks & Commodities, 1984.",
     EvaluateStochastic},
    {"010204", 'T', 140, kLevelVariants, 2, kLevelRoles,
     "Commodity channel index. D. R. Lambert, Commodities, October 1980.", EvaluateCci},
    {"010205", 'T', 150, kLevelVariants, 2, kLevelRoles,
     "100 * (close - highest) / (highest - lowest). L. Williams, How I Made One Million Dollars, 1973.",
     EvaluateWilliams},
    {"010206", 'T', 160, kLevelVariants, 2, kLevelRoles,
     "100 * (close - close n bars before) / close n bars before. Murphy, 1999.", EvaluateRateOfChange},
};

}  // namespace

std::span<const Indicator> OscillatorIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
