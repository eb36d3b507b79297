#include "server/market/calendar.h"

#include <charconv>
#include <chrono>

namespace jogeon::market {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr int kFirstDate = 19000101;
constexpr int kLastDate = 21991231;

year_month_day Split(int date) {
    return {year(date / 10000), month(static_cast<unsigned>(date / 100 % 100)),
            day(static_cast<unsigned>(date % 100))};
}

// The digits of `text`, all of it, as a number.
std::optional<int> ParseDigits(std::string_view text) {
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}

}  // namespace

bool IsDate(int date) {
    return date >= kFirstDate && date <= kLastDate && Split(date).ok();
}

int DayNumber(int date) {
    return static_cast<int>(sys_days(Split(date)).time_since_epoch().count());
}

int DateOfDay(int dayNumber) {
    const year_month_day date{sys_days(days(dayNumber))};
    return static_cast<int>(date.year()) * 10000 +
           static_cast<int>(static_cast<unsigned>(date.month())) * 100 +
           static_cast<int>(static_cast<unsigned>(date.day()));
}

// 1970-01-01 was a Thursday. The shift of whole weeks keeps the division away from negative numbers.
constexpr int kDaysBeforeEpoch = 7 * 10000 + 3;

int Weekday(int date) {
    return (DayNumber(date) + kDaysBeforeEpoch) % 7;
}

int PeriodOf(Timeframe timeframe, int date) {
    switch (timeframe) {
        case Timeframe::Day:
            return date;
        case Timeframe::Week:
            return (DayNumber(date) + kDaysBeforeEpoch) / 7;
        case Timeframe::Month:
            return date / 100;
    }
    return date;
}

std::optional<int> ParseDate(std::string_view text) {
    std::optional<int> date;
    if (text.size() == 8) {
        date = ParseDigits(text);
    } else if (text.size() == 10 && text[4] == text[7] &&
               (text[4] == '-' || text[4] == '/' || text[4] == '.')) {
        const std::optional<int> y = ParseDigits(text.substr(0, 4));
        const std::optional<int> m = ParseDigits(text.substr(5, 2));
        const std::optional<int> d = ParseDigits(text.substr(8, 2));
        if (y && m && d) date = *y * 10000 + *m * 100 + *d;
    }
    return date && IsDate(*date) ? date : std::nullopt;
}

}  // namespace jogeon::market
