#include "server/indicators/windows.h"

#include <algorithm>
#include <cmath>

namespace jogeon::indicators {

namespace {

// Starts from the window's first row and joins each later one to it, oldest first.
template <typename Joined>
Column Fold(const Bars& bars, PriceField field, int bar, int n, Joined join) {
    const int first = bar - n + 1;
    Column result = ColumnAt(bars, field, bar < 0 ? -1 : first);
    for (int b = first + 1; first >= 0 && b <= bar; ++b) {
        const std::span<const double> row = bars.Row(field, b);
        for (std::size_t i = 0; i < row.size(); ++i) result[i] = join(result[i], row[i]);
    }
    return result;
}

}  // namespace

Column ColumnAt(const Bars& bars, PriceField field, int bar) {
    if (bar < 0) return Column(static_cast<std::size_t>(bars.Instruments()), kMissing);
    const std::span<const double> row = bars.Row(field, bar);
    return Column(row.begin(), row.end());
}

Column Mean(const Bars& bars, PriceField field, int bar, int n) {
    Column sum = Fold(bars, field, bar, n, [](double all, double value) { return all + value; });
    for (double& value : sum) value /= n;
    return sum;
}

// In both, `best` stays when it is missing and gives way to a missing value.
Column Highest(const Bars& bars, PriceField field, int bar, int n) {
    return Fold(bars, field, bar, n,
                [](double best, double value) { return value > best || value != value ? value : best; });
}

Column Lowest(const Bars& bars, PriceField field, int bar, int n) {
    return Fold(bars, field, bar, n,
                [](double best, double value) { return value < best || value != value ? value : best; });
}

Column Deviation(const Bars& bars, PriceField field, int bar, int n) {
    const Column mean = Mean(bars, field, bar, n);
    Column squares(mean.size());
    for (int b = std::max(0, bar - n + 1); b <= bar; ++b) {
        const std::span<const double> row = bars.Row(field, b);
        for (std::size_t i = 0; i < row.size(); ++i) squares[i] += (row[i] - mean[i]) * (row[i] - mean[i]);
    }
    return Combine(squares, mean,
                   [n](double sum, double known) { return known == known ? std::sqrt(sum / n) : kMissing; });
}

std::shared_ptr<const Lines> RunLength(MarketDay& day, Timeframe timeframe, int bar) {
    return day.Get({"run length", {}, timeframe, bar}, [&] {
        const Bars& bars = day.GetMarket().BarsOf(timeframe);
        Column length(day.Instruments());
        return WalkTo<1>(bar, day.Instruments(), [&](int b) -> std::array<const Column*, 1> {
            const std::span<const double> close = bars.Row(PriceField::Close, b);
            for (std::size_t i = 0; i < close.size(); ++i)
                length[i] = close[i] == close[i] ? length[i] + 1 : 0;
            return {&length};
        });
    });
}

Column OnlyUnbroken(MarketDay& day, Timeframe timeframe, int bar, int n, const Column& column) {
    const auto run = RunLength(day, timeframe, bar);
    return Combine(column, run->front().now,
                   [n](double value, double length) { return length >= n ? value : kMissing; });
}

}  // namespace jogeon::indicators
