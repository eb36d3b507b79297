// Which bars the date axis names: beginnings of years, months or weeks, or single bars, whatever finds room.
#pragma once

#include <vector>

#include "terminal/chart/bar_window.h"
#include "terminal/chart/series.h"

namespace jogeon::terminal::chart {

struct DateTick {
    enum class Names { Year, Month, Day };  // what is new with this bar, and is to be read there

    int bar = 0;
    Names names = Names::Day;

    friend bool operator==(const DateTick&, const DateTick&) = default;
};

// The ticks of the bars in view, from left to right, at least `apart` pixels from each other. Where two would
// be nearer, the one with the greater name stays.
std::vector<DateTick> DateTicks(const Bars& bars, const BarWindow& window, double apart);

}  // namespace jogeon::terminal::chart
