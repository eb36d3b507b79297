#include "terminal/chart/series.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "server/indicators/smoother.h"
#include "server/indicators/windows.h"

namespace jogeon::terminal::chart {
namespace {

using indicators::Ratio;
using indicators::Smoother;
using market::kMissing;

// at(first) for each bar, where `first` is the oldest of the n bars that end there; unknown where a gap or
// the beginning lies between them.
template <typename At>
Series OverWindows(const Bars& bars, int n, At at) {
    Series result(bars.size(), kMissing);
    const auto length = static_cast<std::size_t>(n);
    std::size_t run = 0;
    for (std::size_t bar = 0; bar < bars.size(); ++bar) {
        run = bars[bar].afterGap ? 1 : run + 1;
        if (run >= length) result[bar] = at(bar + 1 - length, bar);
    }
    return result;
}

Series MeanOfClose(const Bars& bars, int n) {
    return OverWindows(bars, n, [&](std::size_t first, std::size_t last) {
        double sum = 0;
        for (std::size_t bar = first; bar <= last; ++bar) sum += bars[bar].close;
        return sum / n;
    });
}

Series MeanOf(const Bars& bars, const Series& values, int n) {
    return OverWindows(bars, n, [&](std::size_t first, std::size_t last) {
        double sum = 0;
        for (std::size_t bar = first; bar <= last; ++bar) sum += values[bar];
        return sum / n;
    });
}

// One stock's recursive average, value by value.
class Smoothed {
public:
    explicit Smoothed(Smoother smoother) : smoother_(std::move(smoother)) {}

    double Add(double value) {
        smoother_.Add({&value, 1});
        return smoother_.Averages().front();
    }
    void EndRun() { Add(kMissing); }

private:
    Smoother smoother_;
};

Smoothed ExponentialOf(int n) {
    return Smoothed(Smoother::Exponential(1, n));
}

}  // namespace

Series MovingAverage(const Bars& bars, int n, AverageKind kind) {
    if (kind == AverageKind::Simple) return MeanOfClose(bars, n);
    Smoothed average = ExponentialOf(n);
    Series result;
    result.reserve(bars.size());
    for (const service::ChartBar& bar : bars) {
        if (bar.afterGap) average.EndRun();
        result.push_back(average.Add(bar.close));
    }
    return result;
}

Bands BollingerBands(const Bars& bars, int n, double deviations) {
    Bands bands{{}, MeanOfClose(bars, n), {}};
    const Series deviation = OverWindows(bars, n, [&](std::size_t first, std::size_t last) {
        double squares = 0;
        for (std::size_t bar = first; bar <= last; ++bar) {
            const double distance = bars[bar].close - bands.middle[last];
            squares += distance * distance;
        }
        return std::sqrt(squares / n);
    });
    const auto band = [&](double factor) {
        Series edge = bands.middle;
        for (std::size_t bar = 0; bar < edge.size(); ++bar) edge[bar] += factor * deviation[bar];
        return edge;
    };
    bands.upper = band(deviations);
    bands.lower = band(-deviations);
    return bands;
}

Series RelativeStrength(const Bars& bars, int n) {
    Smoothed gains(Smoother::Wilder(1, n));
    Smoothed losses = gains;
    Series result(bars.size(), kMissing);
    for (std::size_t bar = 1; bar < bars.size(); ++bar) {
        if (bars[bar].afterGap) {
            gains.EndRun();
            losses.EndRun();
            continue;
        }
        const double change = bars[bar].close - bars[bar - 1].close;
        const double up = gains.Add(std::max(change, 0.0));
        const double down = losses.Add(std::max(-change, 0.0));
        result[bar] = Ratio(100 * up, up + down);
    }
    return result;
}

LineAndSignal Macd(const Bars& bars, int fast, int slow, int signal) {
    Smoothed fastAverage = ExponentialOf(fast), slowAverage = ExponentialOf(slow);
    Smoothed signalAverage = ExponentialOf(signal);
    LineAndSignal result;
    for (const service::ChartBar& bar : bars) {
        if (bar.afterGap)
            for (Smoothed* average : {&fastAverage, &slowAverage, &signalAverage}) average->EndRun();
        const double quick = fastAverage.Add(bar.close);
        result.line.push_back(quick - slowAverage.Add(bar.close));
        result.signal.push_back(signalAverage.Add(result.line.back()));
    }
    return result;
}

LineAndSignal SlowStochastic(const Bars& bars, int n, int slowK, int slowD) {
    const Series fast = OverWindows(bars, n, [&](std::size_t first, std::size_t last) {
        double low = bars[first].low, high = bars[first].high;
        for (std::size_t bar = first + 1; bar <= last; ++bar) {
            low = std::min(low, bars[bar].low);
            high = std::max(high, bars[bar].high);
        }
        return Ratio(100 * (bars[last].close - low), high - low);
    });
    LineAndSignal result;
    result.line = MeanOf(bars, fast, slowK);
    result.signal = MeanOf(bars, result.line, slowD);
    return result;
}

}  // namespace jogeon::terminal::chart
