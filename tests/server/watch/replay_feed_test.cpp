// A day told as ticks: each stock's path, and all of them together.
#include "server/watch/replay_feed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "server/market/tick_size.h"
#include "tests/server/watch/forming_day.h"

namespace jogeon::watch {
namespace {

using market::Bar;

std::vector<Tick> WalkPath(const Bar& day, std::uint64_t seed) {
    StockPath path(day, market::RandomNumbers(seed, 1));
    std::vector<Tick> ticks;
    while (!path.Over()) {
        EXPECT_LE(ticks.empty() ? kOpening : ticks.back().time, path.Time());
        ticks.push_back(path.Next());
    }
    return ticks;
}

Bar BarOfTicks(const std::vector<Tick>& ticks) {
    Bar bar{ticks.front().price, ticks.front().price, ticks.front().price, ticks.back().price, 0};
    for (const Tick& tick : ticks) {
        bar.high = std::max(bar.high, tick.price);
        bar.low = std::min(bar.low, tick.price);
        bar.volume += tick.volume;
    }
    return bar;
}

std::size_t FirstAt(const std::vector<Tick>& ticks, double price) {
    const auto at = [price](const Tick& tick) { return tick.price == price; };
    return static_cast<std::size_t>(std::find_if(ticks.begin(), ticks.end(), at) - ticks.begin());
}

struct Day {
    const char* name;
    Bar bar;
    std::size_t fewest;
    std::size_t most;
};

constexpr Day kDays[] = {
    {"rising", {10'000, 10'800, 9'900, 10'500, 1'000'000}, 1024, 1024},
    {"falling", {52'300, 52'900, 48'050, 48'100, 40'000}, 438, 438},
    {"opened at its low", {1'000, 1'200, 1'000, 1'100, 500}, 7, 7},
    {"limit up all day", {13'000, 13'000, 13'000, 13'000, 200'000}, 509, 509},
    {"huge turnover", {70'000, 71'000, 69'500, 70'500, 30'000'000}, 5000, 5000},
    {"halted", {4'215, 4'215, 4'215, 4'215, 0}, 1, 1},
    {"one share", {300, 300, 300, 300, 1}, 1, 1},
    {"two shares, four prices", {300, 310, 290, 305, 2}, 4, 4},
    {"prices without trade", {300, 310, 290, 305, 0}, 4, 4},
    {"adjusted for a split", {1234.5, 1301.25, 1200.75, 1250, 90'000.5}, 106, 106},
};

TEST(StockPathTest, LeadsThroughTheDaysPricesAndSellsItsVolume) {
    for (const Day& day : kDays)
        for (std::uint64_t seed = 1; seed <= 20; ++seed) {
            SCOPED_TRACE(std::string(day.name) + ", seed " + std::to_string(seed));
            const Bar& bar = day.bar;
            const std::vector<Tick> ticks = WalkPath(bar, seed);
            EXPECT_GE(ticks.size(), day.fewest);
            EXPECT_LE(ticks.size(), day.most);
            const Bar built = BarOfTicks(ticks);
            EXPECT_EQ(std::tie(built.open, built.high, built.low, built.close, built.volume),
                      std::tie(bar.open, bar.high, bar.low, bar.close, bar.volume));
            EXPECT_EQ(ticks.front().time, kOpening);
            EXPECT_EQ(ticks.back().time, ticks.size() > 1 ? kClosing : kOpening);
            for (const Tick& tick : ticks) {
                EXPECT_GE(tick.volume, bar.volume >= static_cast<double>(ticks.size()) ? 1 : 0);
                const double permitted = bar.low == 1200.75 ? tick.price : market::FloorToTick(tick.price);
                EXPECT_EQ(tick.price, permitted);
            }
        }
}

TEST(StockPathTest, LowComesFirstOnARisingDayAndMostPricesLieBetweenTheExtremes) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        const std::vector<Tick> rising = WalkPath(kDays[0].bar, seed);
        EXPECT_LT(FirstAt(rising, 9'900), FirstAt(rising, 10'800)) << seed;
        const std::vector<Tick> falling = WalkPath(kDays[1].bar, seed);
        EXPECT_LT(FirstAt(falling, 52'900), FirstAt(falling, 48'050)) << seed;
        const auto inside = std::count_if(rising.begin(), rising.end(), [](const Tick& tick) {
            return tick.price > 9'900 && tick.price < 10'800;
        });
        EXPECT_GT(inside, 900) << "of 1,024 ticks; the price doesn't stick to the day's limits, seed "
                               << seed;
    }
}

// Two stocks over two days; the second one has no bar on the last day.
std::shared_ptr<const market::Market> TwoStocks() {
    market::MarketBuilder builder;
    for (const char* code : {"000010", "000020", "000030"}) {
        market::Instrument stock;
        stock.code = code;
        builder.AddInstrument(stock);
    }
    for (int stock = 0; stock < 3; ++stock) builder.AddBar(stock, 20260305, 100, 110, 90, 105, 50'000);
    builder.AddBar(0, 20260306, 105, 120, 100, 110, 70'000);
    builder.AddBar(2, 20260306, 105, 105, 80, 90, 60'000);
    return builder.Build();
}

TEST(ReplayFeedTest, GivesTheSameTicksHoweverItIsAsked) {
    const auto market = TwoStocks();
    ReplayFeed atOnce(*market);
    std::vector<Tick> all;
    atOnce.Take(kClosing, all);
    EXPECT_TRUE(atOnce.Over());
    EXPECT_TRUE(
        std::is_sorted(all.begin(), all.end(), [](const Tick& a, const Tick& b) { return a.time < b.time; }));
    EXPECT_TRUE(std::none_of(all.begin(), all.end(), [](const Tick& tick) { return tick.stock == 1; }));

    ReplayFeed bitByBit(*market);
    std::vector<Tick> pieces;
    for (TimeOfDay until = kOpening; until <= kClosing; until += 7 * kMinute) {
        EXPECT_FALSE(bitByBit.Over());
        const std::size_t before = pieces.size();
        bitByBit.Take(until, pieces);
        EXPECT_TRUE(pieces.size() == before || pieces.back().time <= until);
    }
    bitByBit.Take(kClosing, pieces);
    EXPECT_TRUE(all == pieces);

    std::vector<Tick> other;
    ReplayFeed(*market, 7).Take(kClosing, other);
    EXPECT_FALSE(all == other) << "another seed is another day";
}

}  // namespace
}  // namespace jogeon::watch
