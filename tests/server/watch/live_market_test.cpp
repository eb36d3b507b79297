#include "server/watch/live_market.h"

#include <gtest/gtest.h>

#include "server/market/calendar.h"
#include "server/market/random_numbers.h"
#include "server/watch/replay_feed.h"
#include "tests/server/market/market_values.h"
#include "tests/server/watch/forming_day.h"

namespace jogeon::watch {
namespace {

// Four stocks over a winter of weekdays with holes.
std::shared_ptr<const market::Market> Winter() {
    market::MarketBuilder builder;
    for (const char* code : {"000010", "000020", "000030", "000040"}) {
        market::Instrument stock;
        stock.code = code;
        builder.AddInstrument(stock);
    }
    market::RandomNumbers random(1, 1);
    for (int day = market::DayNumber(20241118); day <= market::DayNumber(20250210); ++day)
        for (int stock = 0; stock < builder.Instruments(); ++stock) {
            const double close = 100 + random.Below(50);
            const double volume = random.Below(1000);
            const int date = market::DateOfDay(day);
            if (!random.Chance(0.3) && market::Weekday(date) < 5)
                builder.AddBar(stock, date, close + 1, close + 3, close - 2, close, volume);
        }
    return builder.Build();
}

// Mondays, first days of a month and the market's very first day among them.
TEST(LiveMarketTest, IsAtAnyMomentTheMarketOfTheBarsFormedSoFar) {
    const auto winter = Winter();
    const market::Bars& days = winter->BarsOf(market::Timeframe::Day);
    for (int day = 0; day < days.Count(); ++day) {
        SCOPED_TRACE(days.Date(day));
        const auto whole = winter->AsOf(days.Date(day));
        LiveMarket live(whole);
        test::FormingDay independent(*whole);
        ReplayFeed feed(*whole);
        for (const TimeOfDay until : {kOpening, kOpening + 100 * kMinute, kClosing}) {
            std::vector<Tick> ticks;
            feed.Take(until, ticks);
            for (const Tick& tick : ticks) live.Take(tick);
            independent.Take(ticks);
            market::ExpectSameBars(live, *independent.Build());
            ASSERT_FALSE(HasFatalFailure());
        }
        market::ExpectSameBars(live, *whole);
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(LiveMarketTest, StockIsMissingUntilItTradesAndWhatNoStockCanHaveIsPassedOver) {
    const auto whole = Winter();
    const auto live = std::make_shared<LiveMarket>(whole);
    const int last = whole->BarsOf(market::Timeframe::Day).Count() - 1;
    EXPECT_EQ(market::BarText(*live, market::Timeframe::Day, "000010", last), "-");
    for (const Tick& impossible :
         {Tick{-1, kOpening, 100, 1}, Tick{4, kOpening, 100, 1}, Tick{0, kOpening, 0, 1},
          Tick{0, kOpening, market::kMissing, 1}, Tick{0, kOpening, 100, -1}})
        live->Take(impossible);
    EXPECT_EQ(market::BarText(*live, market::Timeframe::Day, "000010", last), "-");
    live->Take({0, kOpening, 100, 5});
    live->Take({0, kOpening, 90, 5});
    EXPECT_EQ(market::BarText(*live, market::Timeframe::Day, "000010", last), "100 100 90 90 10");
    EXPECT_EQ(live->AsOf(live->LastDate()).get(), live.get());
    market::ExpectSameBars(*live->AsOf(20250131), *whole->AsOf(20250131));
    EXPECT_NE(market::ErrorOf([] { LiveMarket(market::MarketBuilder().Build()); }), "");
}

}  // namespace
}  // namespace jogeon::watch
