#include "server/market/tick_size.h"

#include <gtest/gtest.h>

namespace jogeon::market {
namespace {

TEST(TickSize, ChangesAtTheExchangesBounds) {
    const int cases[][2] = {{1, 1},        {1999, 1},     {2000, 5},      {4995, 5},      {5000, 10},
                            {19990, 10},   {20000, 50},   {49950, 50},    {50000, 100},   {199900, 100},
                            {200000, 500}, {499500, 500}, {500000, 1000}, {2000000, 1000}};
    for (const auto& [price, tick] : cases) EXPECT_EQ(TickSize(price), tick) << price;
}

TEST(TickSize, RoundsOntoTicksAcrossBounds) {
    EXPECT_EQ(FloorToTick(2004.9), 2000);
    EXPECT_EQ(CeilToTick(1999.1), 2000);
    EXPECT_EQ(CeilToTick(2001), 2005);
    EXPECT_EQ(CeilToTick(2005), 2005);
    EXPECT_EQ(RoundToTick(4997.4), 4995);
    EXPECT_EQ(RoundToTick(4997.5), 5000);
    EXPECT_EQ(RoundToTick(0.3), 1);
}

TEST(TickSize, LimitsAreThirtyPercentCutToATick) {
    EXPECT_EQ(UpperLimit(100), 130);  // neither 129 nor 131: no rounding of 1.3
    EXPECT_EQ(LowerLimit(100), 70);
    EXPECT_EQ(UpperLimit(1543), 2005);  // 2005.9
    EXPECT_EQ(LowerLimit(2770), 1939);
    EXPECT_EQ(UpperLimit(71200), 92500);  // 92560
    EXPECT_EQ(LowerLimit(71200), 49850);  // 49840
}

}  // namespace
}  // namespace jogeon::market
