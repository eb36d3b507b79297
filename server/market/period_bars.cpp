#include "server/market/period_bars.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "server/market/calendar.h"

namespace jogeon::market {
namespace {

// Bars first to first + count - 1 of the days.
struct DayRange {
    int first;
    int count;
};

std::vector<DayRange> SplitIntoPeriods(const Bars& days, int count, Timeframe timeframe) {
    std::vector<DayRange> periods;
    int current = 0;
    for (int bar = 0; bar < count; ++bar) {
        const int period = PeriodOf(timeframe, days.Date(bar));
        if (periods.empty() || period != current) periods.push_back({bar, 0});
        current = period;
        ++periods.back().count;
    }
    return periods;
}

// The five rows of one bar that is still being put together.
struct PeriodRows {
    PeriodRows(BarsInMemory& bars, int bar)
        : open(bars.WritableRow(PriceField::Open, bar)),
          high(bars.WritableRow(PriceField::High, bar)),
          low(bars.WritableRow(PriceField::Low, bar)),
          close(bars.WritableRow(PriceField::Close, bar)),
          volume(bars.WritableRow(PriceField::Volume, bar)) {}

    // Takes in one day of all stocks; days come in order of time.
    void Add(const Bars& days, int day) {
        const std::span<const double> dayOpen = days.Row(PriceField::Open, day);
        const std::span<const double> dayHigh = days.Row(PriceField::High, day);
        const std::span<const double> dayLow = days.Row(PriceField::Low, day);
        const std::span<const double> dayClose = days.Row(PriceField::Close, day);
        const std::span<const double> dayVolume = days.Row(PriceField::Volume, day);
        for (std::size_t i = 0; i < open.size(); ++i) {
            if (std::isnan(dayClose[i])) continue;
            const bool first = std::isnan(close[i]);
            if (first) open[i] = dayOpen[i];
            high[i] = first ? dayHigh[i] : std::max(high[i], dayHigh[i]);
            low[i] = first ? dayLow[i] : std::min(low[i], dayLow[i]);
            close[i] = dayClose[i];
            volume[i] = first ? dayVolume[i] : volume[i] + dayVolume[i];
        }
    }

    std::span<double> open, high, low, close, volume;
};

BarsInMemory Derive(const Bars& days, std::span<const DayRange> periods) {
    std::vector<int> dates;
    for (const DayRange& period : periods) dates.push_back(days.Date(period.first + period.count - 1));
    BarsInMemory bars(days.Instruments(), std::move(dates));
    for (std::size_t i = 0; i < periods.size(); ++i) {
        PeriodRows rows(bars, static_cast<int>(i));
        for (int day = 0; day < periods[i].count; ++day) rows.Add(days, periods[i].first + day);
    }
    return bars;
}

}  // namespace

BarsInMemory DerivePeriods(const Bars& days, int count, Timeframe timeframe) {
    return Derive(days, SplitIntoPeriods(days, count, timeframe));
}

BarsInMemory DeriveLastPeriod(const Bars& days, int count, Timeframe timeframe) {
    const int period = PeriodOf(timeframe, days.Date(count - 1));
    int first = count - 1;
    while (first > 0 && PeriodOf(timeframe, days.Date(first - 1)) == period) --first;
    const DayRange range{first, count - first};
    return Derive(days, {&range, 1});
}

}  // namespace jogeon::market
