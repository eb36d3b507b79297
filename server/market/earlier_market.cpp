#include "server/market/earlier_market.h"

#include <algorithm>
#include <array>
#include <utility>

#include "server/market/bars_in_memory.h"
#include "server/market/period_bars.h"

namespace jogeon::market {
namespace {

// How many bars of `bars` are dated `date` or earlier.
int CountUpTo(const Bars& bars, int date) {
    int low = 0;
    int high = bars.Count();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (bars.Date(middle) <= date)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

// The first bars of others, as they are.
class FirstBars : public Bars {
public:
    FirstBars(const Bars& whole, int count) : whole_(whole), count_(count) {}

    int Count() const override { return count_; }
    int Instruments() const override { return whole_.Instruments(); }
    std::span<const double> Row(PriceField field, int bar) const override { return whole_.Row(field, bar); }
    int Date(int bar) const override { return whole_.Date(bar); }

private:
    const Bars& whole_;
    int count_;
};

// The finished weeks or months of others and the running one.
class FirstPeriods : public Bars {
public:
    FirstPeriods(const Bars& whole, int finished, BarsInMemory running)
        : whole_(whole), finished_(finished), running_(std::move(running)) {}

    int Count() const override { return finished_ + 1; }
    int Instruments() const override { return running_.Instruments(); }
    std::span<const double> Row(PriceField field, int bar) const override {
        return bar < finished_ ? whole_.Row(field, bar) : running_.Row(field, 0);
    }
    int Date(int bar) const override { return bar < finished_ ? whole_.Date(bar) : running_.Date(0); }

private:
    const Bars& whole_;
    int finished_;
    BarsInMemory running_;
};

class EarlierMarket : public Market {
public:
    EarlierMarket(std::shared_ptr<const Market> whole, int days)
        : whole_(std::move(whole)),
          days_(whole_->BarsOf(Timeframe::Day), days),
          weeks_(CutPeriods(Timeframe::Week)),
          months_(CutPeriods(Timeframe::Month)) {}

    const std::vector<Instrument>& Instruments() const override { return whole_->Instruments(); }
    const Bars& BarsOf(Timeframe timeframe) const override {
        if (timeframe == Timeframe::Day) return days_;
        return timeframe == Timeframe::Week ? weeks_ : months_;
    }
    bool Generated() const override { return whole_->Generated(); }
    const std::string& Source() const override { return whole_->Source(); }

    // Cuts the whole market again, so that views never stack.
    std::shared_ptr<const Market> AsOf(int date) const override {
        if (date >= LastDate()) return shared_from_this();
        return ViewAsOf(whole_, date);
    }

private:
    FirstPeriods CutPeriods(Timeframe timeframe) const {
        BarsInMemory running = DeriveLastPeriod(days_, days_.Count(), timeframe);
        const Bars& periods = whole_->BarsOf(timeframe);
        // A period that ends before the last day is finished; one that ends with it is the running one.
        const int finished = CountUpTo(periods, running.Date(0) - 1);
        return FirstPeriods(periods, finished, std::move(running));
    }

    std::shared_ptr<const Market> whole_;
    FirstBars days_;
    FirstPeriods weeks_;
    FirstPeriods months_;
};

}  // namespace

std::shared_ptr<const Market> ViewAsOf(std::shared_ptr<const Market> whole, int date) {
    const int days = CountUpTo(whole->BarsOf(Timeframe::Day), date);
    if (days == 0) return nullptr;
    return std::make_shared<const EarlierMarket>(std::move(whole), days);
}

}  // namespace jogeon::market
