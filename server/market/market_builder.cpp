#include "server/market/market_builder.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "server/market/bars_in_memory.h"
#include "server/market/calendar.h"
#include "server/market/instrument_code.h"
#include "server/market/market_file.h"
#include "server/market/period_bars.h"
#include "server/market/stored_market.h"

namespace jogeon::market {
namespace {

// For each instrument number its place in order of code.
std::vector<int> PlacesByCode(const std::vector<Instrument>& instruments) {
    std::vector<int> order(instruments.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](int a, int b) {
        return instruments[static_cast<std::size_t>(a)].code < instruments[static_cast<std::size_t>(b)].code;
    });
    std::vector<int> places(order.size());
    for (std::size_t place = 0; place < order.size(); ++place)
        places[static_cast<std::size_t>(order[place])] = static_cast<int>(place);
    return places;
}

// Finds the bar of a date among ascending dates in one step.
class DateIndex {
public:
    explicit DateIndex(const std::vector<int>& dates) {
        if (dates.empty()) return;
        first_ = DayNumber(dates.front());
        bars_.resize(Slot(dates.back()) + 1);
        for (std::size_t i = 0; i < dates.size(); ++i) bars_[Slot(dates[i])] = static_cast<int>(i);
    }

    // `date` is one of the dates.
    int BarOf(int date) const { return bars_[Slot(date)]; }

private:
    std::size_t Slot(int date) const { return static_cast<std::size_t>(DayNumber(date) - first_); }

    int first_ = 0;
    std::vector<int> bars_;
};

}  // namespace

int MarketBuilder::AddInstrument(Instrument instrument) {
    if (!IsInstrumentCode(instrument.code))
        throw MarketError("\"" + instrument.code + "\" is no stock code: a code is six letters or digits");
    const int number = Instruments();
    if (!numbers_.emplace(instrument.code, number).second)
        throw MarketError("the stock " + instrument.code + " was added twice");
    instruments_.push_back(std::move(instrument));
    return number;
}

std::optional<int> MarketBuilder::NumberOf(std::string_view code) const {
    const auto found = numbers_.find(code);
    return found == numbers_.end() ? std::nullopt : std::optional<int>(found->second);
}

void MarketBuilder::AddBar(int instrument, int date, double open, double high, double low, double close,
                           double volume) {
    if (!IsDate(date)) throw MarketError(std::to_string(date) + " is no date");
    Bar bar{open, high, low, close, volume};
    const BarVerdict verdict = FitBar(bar);
    if (!verdict.fault.empty())
        throw MarketError(At(instrument).code + " on " + std::to_string(date) + ": " +
                          std::string(verdict.fault));
    AddFittedBar(instrument, date, bar);
}

void MarketBuilder::AddFittedBar(int instrument, int date, const Bar& bar) {
    bars_.push_back({instrument, date, bar});
}

std::vector<int> MarketBuilder::MarketDates() const {
    if (bars_.empty()) return {};
    const auto [oldest, newest] = std::minmax_element(
        bars_.begin(), bars_.end(), [](const DatedBar& a, const DatedBar& b) { return a.date < b.date; });
    const int first = DayNumber(oldest->date);
    const int last = DayNumber(newest->date);
    std::vector<bool> traded(static_cast<std::size_t>(last - first) + 1);
    for (const DatedBar& bar : bars_) traded[static_cast<std::size_t>(DayNumber(bar.date) - first)] = true;
    std::vector<int> dates;
    for (std::size_t day = 0; day < traded.size(); ++day)
        if (traded[day]) dates.push_back(DateOfDay(first + static_cast<int>(day)));
    return dates;
}

std::shared_ptr<const Market> MarketBuilder::Build() const {
    const std::vector<int> places = PlacesByCode(instruments_);
    std::vector<int> dates = MarketDates();
    const DateIndex index(dates);
    auto days = std::make_unique<BarsInMemory>(Instruments(), std::move(dates));
    for (const DatedBar& dated : bars_) {
        const auto place = static_cast<std::size_t>(places[static_cast<std::size_t>(dated.instrument)]);
        const int bar = index.BarOf(dated.date);
        days->WritableRow(PriceField::Open, bar)[place] = dated.bar.open;
        days->WritableRow(PriceField::High, bar)[place] = dated.bar.high;
        days->WritableRow(PriceField::Low, bar)[place] = dated.bar.low;
        days->WritableRow(PriceField::Close, bar)[place] = dated.bar.close;
        days->WritableRow(PriceField::Volume, bar)[place] = dated.bar.volume;
    }

    StoredMarket::Parts parts;
    parts.instruments.resize(instruments_.size());
    for (std::size_t i = 0; i < instruments_.size(); ++i)
        parts.instruments[static_cast<std::size_t>(places[i])] = instruments_[i];
    for (const Timeframe timeframe : {Timeframe::Week, Timeframe::Month})
        parts.bars[static_cast<std::size_t>(timeframe)] =
            std::make_unique<BarsInMemory>(DerivePeriods(*days, days->Count(), timeframe));
    parts.bars[static_cast<std::size_t>(Timeframe::Day)] = std::move(days);
    parts.source = source_;
    parts.generated = generated_;
    return std::make_shared<const StoredMarket>(std::move(parts));
}

void MarketBuilder::Write(const std::filesystem::path& path) const {
    WriteMarket(*Build(), path);
}

int MarketBuilder::InstrumentsWithoutBars() const {
    std::vector<bool> has(instruments_.size());
    for (const DatedBar& dated : bars_) has[static_cast<std::size_t>(dated.instrument)] = true;
    return static_cast<int>(std::count(has.begin(), has.end(), false));
}

std::vector<MarketBuilder::Duplicate> MarketBuilder::FindDuplicates() const {
    std::vector<int> dates = MarketDates();
    const DateIndex index(dates);
    std::vector<bool> seen(dates.size() * instruments_.size());
    std::vector<Duplicate> duplicates;
    for (const DatedBar& dated : bars_) {
        const auto stock = static_cast<std::size_t>(dated.instrument);
        const std::size_t slot =
            static_cast<std::size_t>(index.BarOf(dated.date)) * instruments_.size() + stock;
        if (seen[slot]) duplicates.push_back({instruments_[stock].code, dated.date});
        seen[slot] = true;
    }
    return duplicates;
}

}  // namespace jogeon::market
