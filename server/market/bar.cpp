#include "server/market/bar.h"

#include <algorithm>
#include <cmath>

namespace jogeon::market {
namespace {

constexpr double kTolerance = 0.01;  // how far out of its range a close may lie, as a part of the price

bool IsHalted(const Bar& bar) {
    return bar.volume == 0 && bar.open == 0 && bar.high == 0 && bar.low == 0 && bar.close > 0;
}

bool IsFinite(const Bar& bar) {
    return std::isfinite(bar.open) && std::isfinite(bar.high) && std::isfinite(bar.low) &&
           std::isfinite(bar.close) && std::isfinite(bar.volume);
}

BarVerdict Fault(std::string_view reason) {
    return {BarChange::None, reason};
}

}  // namespace

BarVerdict FitBar(Bar& bar) {
    if (!IsFinite(bar)) return Fault("a price or the volume is no number");
    if (IsHalted(bar)) {
        bar.open = bar.high = bar.low = bar.close;
        return {BarChange::Halted, {}};
    }
    if (bar.open <= 0 || bar.high <= 0 || bar.low <= 0 || bar.close <= 0)
        return Fault("a price is not positive");
    if (bar.volume < 0) return Fault("the volume is negative");
    if (bar.high < bar.low) return Fault("the high is below the low");

    const double high = std::max({bar.high, bar.open, bar.close});
    const double low = std::min({bar.low, bar.open, bar.close});
    if (high == bar.high && low == bar.low) return {};
    if (high > bar.high * (1 + kTolerance) || low < bar.low * (1 - kTolerance))
        return Fault("the open or the close is outside of high and low");
    bar.high = high;
    bar.low = low;
    return {BarChange::Widened, {}};
}

}  // namespace jogeon::market
