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

// Calls step(b) for the bars 0 to `bar`, and columns() after each of the last two: it returns an array with
// the columns of `Count` lines as they stand then.
template <std::size_t Count, typename Step, typename Columns>
Lines WalkTo(int bar, std::size_t instruments, Step step, Columns columns) {
    Lines lines(Count, Line{Column(instruments, kMissing), Column(instruments, kMissing)});
    for (int b = 0; b <= bar; ++b) {
        step(b);
        if (b < bar - 1) continue;
        std::array<Column, Count> reached = columns();
        for (std::size_t i = 0; i < Count; ++i)
            (b == bar ? lines[i].now : lines[i].before) = std::move(reached[i]);
    }
    return lines;
}

}  // namespace jogeon::indicators
