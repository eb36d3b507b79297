// Formulas as a textbook has them, for one stock at a time: what the engine is measured against.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "server/market/market.h"

namespace jogeon::textbook {

// The unbroken run of a stock's bars that ends before bar `end`, oldest first.
struct Run {
    std::vector<double> close;
    std::vector<double> volume;
};

inline Run RunOf(const market::Bars& bars, std::size_t stock, int end) {
    using market::PriceField;
    Run run;
    int first = end;
    while (first > 0 && !std::isnan(bars.Row(PriceField::Close, first - 1)[stock])) --first;
    for (int bar = first; bar < end; ++bar) {
        run.close.push_back(bars.Row(PriceField::Close, bar)[stock]);
        run.volume.push_back(bars.Row(PriceField::Volume, bar)[stock]);
    }
    return run;
}

// The mean of the `n` values before `end`.
inline double MeanBefore(const std::vector<double>& values, std::size_t end, std::size_t n) {
    double sum = 0;
    for (std::size_t i = end - n; i < end; ++i) sum += values[i];
    return sum / static_cast<double>(n);
}

// J. Welles Wilder, New Concepts in Technical Trading Systems (1978): his smoothing, begun with a plain mean.
inline double Rsi(const std::vector<double>& close, std::size_t n) {
    double up = 0;
    double down = 0;
    for (std::size_t i = 1; i < close.size(); ++i) {
        const double rise = std::max(close[i] - close[i - 1], 0.0);
        const double fall = std::max(close[i - 1] - close[i], 0.0);
        up = i <= n ? up + rise / static_cast<double>(n) : up + (rise - up) / static_cast<double>(n);
        down = i <= n ? down + fall / static_cast<double>(n) : down + (fall - down) / static_cast<double>(n);
    }
    return 100 * up / (up + down);
}

}  // namespace jogeon::textbook
