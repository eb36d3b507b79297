// Columns over a window of bars: mean, extremes, deviation, and whether a window is unbroken.
//
// A window is the n bars that end at a bar; where one of them is missing or lies before the first bar, the
// result is missing.
#pragma once

#include <array>
#include <utility>

#include "server/indicators/market_day.h"

namespace jogeon::indicators {

using market::Bars;
using market::PriceField;

// A copy of one row; all missing for a bar before the first.
Column ColumnAt(const Bars& bars, PriceField field, int bar);

Column Mean(const Bars& bars, PriceField field, int bar, int n);
Column Highest(const Bars& bars, PriceField field, int bar, int n);
Column Lowest(const Bars& bars, PriceField field, int bar, int n);

// Standard deviation of the whole window: the mean of the squares is taken over n, not n - 1.
Column Deviation(const Bars& bars, PriceField field, int bar, int n);

// `column`, missing where fewer than `n` bars end at `bar` without a gap.
Column OnlyUnbroken(const Bars& bars, int bar, int n, Column column);

// at(bar) and at(bar - 1) as one line.
template <typename At>
Line LineOf(int bar, At at) {
    return {at(bar), at(bar - 1)};
}

// left[i] and right[i] joined by `join`, for every instrument.
template <typename Joined>
Column Combine(const Column& left, const Column& right, Joined join) {
    Column result(left.size());
    for (std::size_t i = 0; i < left.size(); ++i) result[i] = join(left[i], right[i]);
    return result;
}

// A quotient that is unknown where it would be infinite.
inline double Ratio(double part, double whole) {
    return whole == 0 ? kMissing : part / whole;
}

// 100 * (now - then) / then: the product first, so that a change of exactly 5 percent reads 5.
inline double PercentChange(double now, double then) {
    return Ratio(100 * (now - then), then);
}

// The lines of a formula that carries something from bar to bar: at the key's bar and the one before. A walk
// has Step(bars, bar), called for the bars from 0 on, and Columns(), an array of what its lines are then.
template <typename Walk>
Lines WalkTo(MarketDay& day, const LinesKey& key, const Walk& start) {
    const Bars& bars = day.GetMarket().BarsOf(key.timeframe);
    const auto before = day.GetGroundwork<Walk>(key, [&] {
        auto walk = std::make_shared<Walk>(start);
        for (int bar = 0; bar < key.bar; ++bar) walk->Step(bars, bar);
        return walk;
    });
    Walk walk = *before;
    const Column unknown(day.Instruments(), kMissing);
    Lines lines(std::tuple_size_v<decltype(walk.Columns())>, Line{unknown, unknown});
    const auto put = [&](Column Line::*side) {
        auto columns = walk.Columns();
        for (std::size_t i = 0; i < columns.size(); ++i) lines[i].*side = std::move(columns[i]);
    };
    if (key.bar > 0) put(&Line::before);
    if (key.bar < 0) return lines;
    walk.Step(bars, key.bar);
    put(&Line::now);
    return lines;
}

}  // namespace jogeon::indicators
