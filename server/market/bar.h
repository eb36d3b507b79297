// One bar of one stock, and what makes it fit for a market.
//
// Prices are in won, volume in shares, as everywhere in the market.
#pragma once

#include <string_view>

namespace jogeon::market {

struct Bar {
    double open = 0;
    double high = 0;
    double low = 0;
    double close = 0;
    double volume = 0;
};

// What had to be done to a bar before it fitted.
enum class BarChange {
    None,
    Halted,  // no open, high, low and volume: now a flat bar at the close
    Widened  // open or close a little outside of high and low: the range now holds them
};

struct BarVerdict {
    BarChange change = BarChange::None;
    std::string_view fault;  // why the bar can't be in a market; empty: it fits
};

// Makes `bar` fit and says what that took, or says why it can't be and leaves it alone. Sources print a
// close that lies a tick outside of the day's range now and then; more than one percent is a fault.
BarVerdict FitBar(Bar& bar);

}  // namespace jogeon::market
