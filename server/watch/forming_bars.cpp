#include "server/watch/forming_bars.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace jogeon::watch {

using market::Bar;
using market::BarsInMemory;
using market::PriceField;

namespace {

Bar BarAt(const BarsInMemory& bars, std::size_t stock) {
    const auto value = [&](PriceField field) { return bars.Row(field, 0)[stock]; };
    return {value(PriceField::Open), value(PriceField::High), value(PriceField::Low),
            value(PriceField::Close), value(PriceField::Volume)};
}

void PutBar(BarsInMemory& bars, std::size_t stock, const Bar& bar) {
    bars.WritableRow(PriceField::Open, 0)[stock] = bar.open;
    bars.WritableRow(PriceField::High, 0)[stock] = bar.high;
    bars.WritableRow(PriceField::Low, 0)[stock] = bar.low;
    bars.WritableRow(PriceField::Close, 0)[stock] = bar.close;
    bars.WritableRow(PriceField::Volume, 0)[stock] = bar.volume;
}

}  // namespace

FormingBars::FormingBars(const market::Bars& whole, BarsInMemory start)
    : whole_(whole), finished_(whole.Count() - 1), start_(std::move(start)), now_(start_) {}

void FormingBars::Join(std::size_t stock, const Bar& more) {
    const Bar start = BarAt(start_, stock);
    const bool first = std::isnan(start.close);
    PutBar(now_, stock,
           first ? more
                 : Bar{start.open, std::max(start.high, more.high), std::min(start.low, more.low), more.close,
                       start.volume + more.volume});
}

}  // namespace jogeon::watch
