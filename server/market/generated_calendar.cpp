#include "server/market/generated_calendar.h"

#include <algorithm>
#include <iterator>

#include "server/market/calendar.h"

namespace jogeon::market {
namespace {

// Weekdays only, in order: public holidays, their substitutes, election days, the first of May and the last
// day of the year.
constexpr int kHolidays[] = {
    20241001, 20241003, 20241009, 20241225, 20241231, 20250101, 20250127, 20250128, 20250129, 20250130,
    20250303, 20250501, 20250505, 20250506, 20250603, 20250606, 20250815, 20251003, 20251006, 20251007,
    20251008, 20251009, 20251225, 20251231, 20260101, 20260216, 20260217, 20260218, 20260302, 20260501,
    20260505, 20260525, 20260603, 20260817, 20260924, 20260925, 20261005, 20261009,
};

bool IsTradingDay(int date) {
    constexpr int kSaturday = 5;
    return Weekday(date) < kSaturday && !std::binary_search(std::begin(kHolidays), std::end(kHolidays), date);
}

}  // namespace

std::vector<int> TradingDaysUpTo(int last, int count) {
    std::vector<int> days;
    for (int day = DayNumber(last); static_cast<int>(days.size()) < count; --day)
        if (const int date = DateOfDay(day); IsTradingDay(date)) days.push_back(date);
    std::reverse(days.begin(), days.end());
    return days;
}

}  // namespace jogeon::market
