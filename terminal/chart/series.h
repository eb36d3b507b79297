// The lines of a chart: one value for each bar, computed as the searches compute theirs.
//
// A gap in a stock's bars ends its history, as it does for every condition: behind one, a line starts afresh.
// Formulas and sources are those of the indicators in server/indicators, whose values these are.
#pragma once

#include <vector>

#include "server/indicators/moving_average.h"
#include "server/service/charts.h"

namespace jogeon::terminal::chart {

using Bars = std::vector<service::ChartBar>;  // the oldest first
using Series = std::vector<double>;           // NaN where the value is unknown
using indicators::AverageKind;

// Simple: the mean of the last n closes. Exponential: begins as the mean of the first n closes of a run and
// goes on with average += 2 / (n + 1) * (close - average). J. J. Murphy, Technical Analysis of the Financial
// Markets, 1999.
Series MovingAverage(const Bars& bars, int n, AverageKind kind);

// The simple average of n closes, and so many of their standard deviations (over n, not n - 1) above and
// below it. J. Bollinger, Bollinger on Bollinger Bands, 2001.
struct Bands {
    Series upper;
    Series middle;
    Series lower;
};
Bands BollingerBands(const Bars& bars, int n, double deviations);

// 100 * gain / (gain + loss) of the gains and losses from close to close, each smoothed with 1 / n.
// J. W. Wilder, New Concepts in Technical Trading Systems, 1978.
Series RelativeStrength(const Bars& bars, int n);

struct LineAndSignal {
    Series line;
    Series signal;
};

// The exponential average of `fast` closes less that of `slow`, and the exponential average of `signal` such
// differences. G. Appel, The Moving Average Convergence-Divergence Method, 1979.
LineAndSignal Macd(const Bars& bars, int fast, int slow, int signal);

// Slow %K: the mean of `slowK` values of 100 * (close - lowest) / (highest - lowest) over n bars; slow %D:
// the mean of `slowD` of these. G. C. Lane, Technical Analysis of Stocks & Commodities, 1984.
LineAndSignal SlowStochastic(const Bars& bars, int n, int slowK, int slowD);

}  // namespace jogeon::terminal::chart
