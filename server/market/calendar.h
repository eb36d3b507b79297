// Dates as the market writes them: one number, yyyymmdd.
//
// Weeks run from Monday to Sunday, as ISO 8601 has them.
#pragma once

#include <optional>
#include <string_view>

#include "server/market/market.h"

namespace jogeon::market {

// Whether `date` is a day of the calendar from 1900 to 2199.
bool IsDate(int date);

// Days since 1970-01-01 and back. `date` is a date.
int DayNumber(int date);
int DateOfDay(int dayNumber);

// 0 for Monday to 6 for Sunday.
int Weekday(int date);

// A number that two dates share when they lie in the same day, week or month, and that grows with time.
int PeriodOf(Timeframe timeframe, int date);

// Reads 2024-03-05, 2024/03/05, 2024.03.05 or 20240305; none if it is something else or no day.
std::optional<int> ParseDate(std::string_view text);

}  // namespace jogeon::market
