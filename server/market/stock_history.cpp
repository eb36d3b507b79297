#include "server/market/stock_history.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "server/market/calendar.h"
#include "server/market/period_bars.h"

namespace jogeon::market {
namespace {

constexpr PriceField kFields[] = {PriceField::Open, PriceField::High, PriceField::Low, PriceField::Close,
                                  PriceField::Volume};

BarsInMemory ColumnOf(const Bars& bars, int stock) {
    std::vector<int> dates;
    for (int bar = 0; bar < bars.Count(); ++bar) dates.push_back(bars.Date(bar));
    BarsInMemory column(1, std::move(dates));
    for (PriceField field : kFields)
        for (int bar = 0; bar < bars.Count(); ++bar)
            column.WritableRow(field, bar)[0] = bars.Row(field, bar)[static_cast<std::size_t>(stock)];
    return column;
}

// The days of a history, each as a column that ends with it. Rows are windows that slide over one array, so
// that no value is held twice.
class SlidingDays : public Bars {
public:
    SlidingDays(const BarsInMemory& days, int first, int count)
        : days_(days), bars_(first + count), width_(static_cast<std::size_t>(count)) {
        for (PriceField field : kFields) {
            std::vector<double>& values = values_[static_cast<std::size_t>(field)];
            values.assign(width_ - 1, kMissing);
            for (int bar = 0; bar < bars_; ++bar) values.push_back(days.Row(field, bar)[0]);
        }
    }

    int Count() const override { return bars_; }
    int Instruments() const override { return static_cast<int>(width_); }
    std::span<const double> Row(PriceField field, int bar) const override {
        return {values_[static_cast<std::size_t>(field)].data() + bar, width_};
    }
    int Date(int bar) const override { return days_.Date(bar); }  // in the last column

private:
    const BarsInMemory& days_;
    const int bars_;
    const std::size_t width_;
    std::array<std::vector<double>, kPriceFields> values_;
};

// The weeks or months of a history, each column with those that are finished at the end of its day and, as
// its last bar, the running one.
BarsInMemory PeriodsOfDays(const BarsInMemory& days, const BarsInMemory& periods, Timeframe timeframe,
                           int first, int count) {
    std::vector<int> dates;
    for (int period = 0; dates.empty() || dates.back() < days.Date(first + count - 1); ++period)
        dates.push_back(periods.Date(period));
    dates.back() = days.Date(first + count - 1);
    const int last = static_cast<int>(dates.size()) - 1;
    BarsInMemory columns(count, std::move(dates));
    int period = 0;  // the one that the column's day lies in
    for (int column = 0; column < count; ++column) {
        while (periods.Date(period) < days.Date(first + column)) ++period;
        const BarsInMemory running = DeriveLastPeriod(days, first + column + 1, timeframe);
        for (PriceField field : kFields) {
            const auto at = static_cast<std::size_t>(column);
            columns.WritableRow(field, last)[at] = running.Row(field, 0)[0];
            for (int ago = 1; ago <= period; ++ago)
                columns.WritableRow(field, last - ago)[at] = periods.Row(field, period - ago)[0];
        }
    }
    return columns;
}

class MarketOfDays : public Market {
public:
    MarketOfDays(const StockHistory& history, int first, int count)
        : days_(history.BarsOf(Timeframe::Day), first, count),
          weeks_(Periods(history, Timeframe::Week, first, count)),
          months_(Periods(history, Timeframe::Month, first, count)),
          stocks_(static_cast<std::size_t>(count), history.Stock()) {
        const int listed = history.Stock().listingDate;
        if (!IsDate(listed)) return;
        for (int column = 0; column < count; ++column) {
            const int younger =
                DayNumber(LastDate()) - DayNumber(history.BarsOf(Timeframe::Day).Date(first + column));
            stocks_[static_cast<std::size_t>(column)].listingDate = DateOfDay(DayNumber(listed) + younger);
        }
    }

    const std::vector<Instrument>& Instruments() const override { return stocks_; }
    const Bars& BarsOf(Timeframe timeframe) const override {
        if (timeframe == Timeframe::Day) return days_;
        return timeframe == Timeframe::Week ? weeks_ : months_;
    }
    bool Generated() const override { return false; }
    const std::string& Source() const override { return source_; }
    std::shared_ptr<const Market> AsOf(int) const override { return nullptr; }

private:
    static BarsInMemory Periods(const StockHistory& history, Timeframe timeframe, int first, int count) {
        return PeriodsOfDays(history.BarsOf(Timeframe::Day), history.BarsOf(timeframe), timeframe, first,
                             count);
    }

    const SlidingDays days_;
    const BarsInMemory weeks_;
    const BarsInMemory months_;
    std::vector<Instrument> stocks_;
    const std::string source_ = "days of one stock";
};

}  // namespace

StockHistory::StockHistory(const Market& market, int stock)
    : stock_(market.Instruments()[static_cast<std::size_t>(stock)]),
      days_(ColumnOf(market.BarsOf(Timeframe::Day), stock)),
      weeks_(DerivePeriods(days_, days_.Count(), Timeframe::Week)),
      months_(DerivePeriods(days_, days_.Count(), Timeframe::Month)) {}

std::shared_ptr<const Market> StockHistory::DaysAsStocks(int first, int count) const {
    return std::make_shared<const MarketOfDays>(*this, first, count);
}

}  // namespace jogeon::market
