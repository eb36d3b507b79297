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

Column OnlyUnbroken(const Bars& bars, int bar, int n, Column column) {
    if (bar < n - 1) return ColumnAt(bars, PriceField::Close, -1);
    for (int b = bar - n + 1; b <= bar; ++b) {
        const std::span<const double> close = bars.Row(PriceField::Close, b);
        for (std::size_t i = 0; i < close.size(); ++i)
            column[i] = close[i] == close[i] ? column[i] : kMissing;
    }
    return column;
}

}  // namespace jogeon::indicators
