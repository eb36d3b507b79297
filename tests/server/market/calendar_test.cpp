#include "server/market/calendar.h"

#include <optional>

#include <gtest/gtest.h>

namespace jogeon::market {
namespace {

TEST(Calendar, WeeksAreIsoWeeksAcrossYearEnds) {
    EXPECT_EQ(Weekday(20260320), 4);  // a Friday
    EXPECT_EQ(Weekday(19000101), 0);
    EXPECT_EQ(PeriodOf(Timeframe::Week, 20241230), PeriodOf(Timeframe::Week, 20250103));
    EXPECT_EQ(PeriodOf(Timeframe::Week, 20250105), PeriodOf(Timeframe::Week, 20241230)) << "Sunday ends it";
    EXPECT_EQ(PeriodOf(Timeframe::Week, 20250106), PeriodOf(Timeframe::Week, 20241230) + 1);
    EXPECT_EQ(PeriodOf(Timeframe::Week, 19691229), PeriodOf(Timeframe::Week, 19700104));
    EXPECT_NE(PeriodOf(Timeframe::Month, 20240105), PeriodOf(Timeframe::Month, 20250105));
}

TEST(Calendar, DayNumbersGoThereAndBack) {
    EXPECT_EQ(DayNumber(19700101), 0);
    EXPECT_EQ(DayNumber(20240301), DayNumber(20240228) + 2);
    for (int day = DayNumber(19991220); day < DayNumber(20000310); ++day)
        EXPECT_EQ(DayNumber(DateOfDay(day)), day);
}

TEST(Calendar, ReadsDatesInTheFormsOfTheSources) {
    const std::pair<const char*, std::optional<int>> cases[] = {
        {"2024-02-29", 20240229},     {"20240229", 20240229},       {"2024/02/29", 20240229},
        {"2024.02.29", 20240229},     {"2023-02-29", std::nullopt}, {"2024-13-01", std::nullopt},
        {"2024-00-10", std::nullopt}, {"2024-1-5", std::nullopt},   {"24-01-05", std::nullopt},
        {"2024-01/05", std::nullopt}, {"2024-+1-05", std::nullopt}, {"", std::nullopt},
        {"99999999", std::nullopt},   {"00010101", std::nullopt},   {"2024-01-051", std::nullopt}};
    for (const auto& [text, date] : cases) EXPECT_EQ(ParseDate(text), date) << text;
}

}  // namespace
}  // namespace jogeon::market
