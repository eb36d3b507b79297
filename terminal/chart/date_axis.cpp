#include "terminal/chart/date_axis.h"

#include <algorithm>
#include <cstddef>

#include "server/market/calendar.h"

namespace jogeon::terminal::chart {
namespace {

using market::Timeframe;
using Names = DateTick::Names;

int MonthsOf(int date) {
    return date / 10000 * 12 + date / 100 % 100 - 1;
}

// How dates are grouped, from fine to coarse; a tick stands where a group begins.
struct Grouping {
    int weeks;   // 1 for groups of a week, else 0
    int months;  // in a group, 0 for none
};
constexpr Grouping kGroupings[] = {{0, 0},  {1, 0},  {0, 1},  {0, 3},   {0, 6},
                                   {0, 12}, {0, 24}, {0, 60}, {0, 120}, {0, 240}};

int GroupOf(const Grouping& grouping, int date) {
    if (grouping.months) return MonthsOf(date) / grouping.months;
    return grouping.weeks ? market::PeriodOf(Timeframe::Week, date) : date;
}

Names NameOf(int before, int date) {
    if (before / 10000 != date / 10000) return Names::Year;
    return before / 100 != date / 100 ? Names::Month : Names::Day;
}

// The first bar has no group's beginning of its own: it may lie in the middle of one.
std::vector<DateTick> Beginnings(const Bars& bars, const BarWindow& window, const Grouping& grouping) {
    std::vector<DateTick> ticks;
    const int end = window.EndVisible();
    for (int bar = std::max(1, window.FirstVisible()); bar < end; ++bar) {
        const int before = bars[static_cast<std::size_t>(bar) - 1].date;
        const int date = bars[static_cast<std::size_t>(bar)].date;
        if (GroupOf(grouping, before) != GroupOf(grouping, date))
            ticks.push_back({bar, NameOf(before, date)});
    }
    return ticks;
}

// Lets the lesser of two near ticks go.
std::vector<DateTick> Thinned(const std::vector<DateTick>& ticks, const BarWindow& window, double apart) {
    std::vector<DateTick> kept;
    for (const DateTick& tick : ticks) {
        const auto near = [&] {
            return !kept.empty() && window.CentreOf(tick.bar) - window.CentreOf(kept.back().bar) < apart;
        };
        while (near() && tick.names < kept.back().names) kept.pop_back();
        if (!near()) kept.push_back(tick);
    }
    return kept;
}

}  // namespace

std::vector<DateTick> DateTicks(const Bars& bars, const BarWindow& window, double apart) {
    const double width = (window.EndVisible() - window.FirstVisible()) * window.BarWidth();
    for (const Grouping& grouping : kGroupings) {
        const std::vector<DateTick> ticks = Beginnings(bars, window, grouping);
        // Groups are of unequal length, so that a few may be nearer than that.
        if (static_cast<double>(ticks.size()) * apart <= width + apart) return Thinned(ticks, window, apart);
    }
    return {};
}

}  // namespace jogeon::terminal::chart
