// Bars and values gathered into columns of pixels, where many share one: what is drawn never grows beyond
// what can be seen.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "terminal/chart/series.h"

namespace jogeon::terminal::chart {

// One bar, or several in the same column of pixels as one.
struct FoldedBar {
    int column = 0;
    int last = 0;  // the newest bar in it
    double open = 0;
    double high = 0;
    double low = 0;
    double close = 0;
    double volume = 0;  // the highest, so that peaks stay in view
};

// The bars from `first` to `end`, less that; `columnOf` gives the column of a bar and never falls.
template <typename ColumnOf>
std::vector<FoldedBar> FoldBars(const Bars& bars, int first, int end, ColumnOf columnOf) {
    std::vector<FoldedBar> folded;
    for (int at = first; at < end; ++at) {
        const service::ChartBar& bar = bars[static_cast<std::size_t>(at)];
        const int column = columnOf(at);
        if (folded.empty() || folded.back().column != column) {
            folded.push_back({column, at, bar.open, bar.high, bar.low, bar.close, bar.volume});
            continue;
        }
        FoldedBar& all = folded.back();
        all.last = at;
        all.high = std::max(all.high, bar.high);
        all.low = std::min(all.low, bar.low);
        all.close = bar.close;
        all.volume = std::max(all.volume, bar.volume);
    }
    return folded;
}

// The values of a line in one column: where it enters, its extremes, where it leaves.
struct FoldedValue {
    int column = 0;
    bool begins = false;  // nothing is known before it: a new piece of line
    double first = 0;
    double low = 0;
    double high = 0;
    double last = 0;
};

template <typename ColumnOf>
std::vector<FoldedValue> FoldSeries(const Series& series, int first, int end, ColumnOf columnOf) {
    std::vector<FoldedValue> folded;
    bool known = false;
    for (int at = first; at < end; ++at) {
        const double value = series[static_cast<std::size_t>(at)];
        const bool begins = !known;
        known = !std::isnan(value);
        if (!known) continue;
        const int column = columnOf(at);
        if (begins || folded.back().column != column) {
            folded.push_back({column, begins, value, value, value, value});
            continue;
        }
        FoldedValue& all = folded.back();
        all.low = std::min(all.low, value);
        all.high = std::max(all.high, value);
        all.last = value;
    }
    return folded;
}

}  // namespace jogeon::terminal::chart
