// Bars whose last one is still being formed.
//
// The finished ones are those of other bars; the last one is our own and changes in place, stock by stock.
#pragma once

#include "server/market/bar.h"
#include "server/market/bars_in_memory.h"

namespace jogeon::watch {

class FormingBars : public market::Bars {
public:
    // In the place of the last bar of `whole`, which outlives this, stands one of the same date that begins
    // as `start`, one bar: what is known of its period before the forming day.
    FormingBars(const market::Bars& whole, market::BarsInMemory start);

    int Count() const override { return finished_ + 1; }
    int Instruments() const override { return start_.Instruments(); }
    std::span<const double> Row(market::PriceField field, int bar) const override {
        return bar < finished_ ? whole_.Row(field, bar) : now_.Row(field, 0);
    }
    int Date(int bar) const override { return whole_.Date(bar); }

    // A stock's last bar becomes what it was at the start and one bar more.
    void Join(std::size_t stock, const market::Bar& more);

private:
    const market::Bars& whole_;
    int finished_;
    market::BarsInMemory start_;
    market::BarsInMemory now_;
};

}  // namespace jogeon::watch
