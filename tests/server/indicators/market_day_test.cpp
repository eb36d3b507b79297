#include "server/indicators/market_day.h"

#include <atomic>
#include <barrier>
#include <thread>

#include <gtest/gtest.h>

#include "tests/server/indicators/bars_of_tests.h"

namespace jogeon::indicators {

namespace {

Lines OneLine(double value) {
    return {{Column(100, value), Column(100, value)}};
}

// Runs `work`(index) on `count` threads that start together.
template <typename Work>
void OnThreads(int count, Work work) {
    std::barrier start(count);
    std::vector<std::jthread> threads;
    threads.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) threads.emplace_back([&, i] { start.arrive_and_wait(), work(i); });
}

TEST(MarketDay, ComputesEachKeyOnceForAllThreads) {
    MarketDay day(MarketOf(Flat({10, 20, 30})));
    std::atomic<int> computed = 0;
    OnThreads(8, [&](int) {
        for (int key = 0; key < 50; ++key) {
            const auto lines = day.Get({"test", {key}, Timeframe::Day, 0}, [&] {
                ++computed;
                std::this_thread::yield();
                return OneLine(key);
            });
            EXPECT_EQ(lines->front().now[99], key);
        }
    });
    EXPECT_EQ(computed, 50);
    EXPECT_EQ(day.Computations(), 50u);
}

TEST(MarketDay, KeepsKeysApart) {
    MarketDay day(MarketOf(Flat({10, 20, 30})));
    const LinesKey keys[] = {{"a", {1, 2}, Timeframe::Day, 5},
                             {"b", {1, 2}, Timeframe::Day, 5},
                             {"a", {2, 1}, Timeframe::Day, 5},
                             {"a", {1, 2}, Timeframe::Week, 5},
                             {"a", {1, 2}, Timeframe::Day, 6}};
    double value = 0;
    for (const LinesKey& key : keys) day.Get(key, [&] { return OneLine(++value); });
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(day.Get(keys[i], [] { return OneLine(-1); })->front().now[0], i + 1);
}

// Conditions of several users share what they have in common: eight threads, one computation of each line.
TEST(MarketDay, SharesLinesBetweenConditions) {
    std::vector<double> closes(120);
    for (int i = 0; double& close : closes) ++i, close = 1000 + 10 * (i * i % 37);
    const auto market = MarketOf(Flat(closes));
    MarketDay day(market);
    OnThreads(8, [&](int) {
        for (const char* values : {"10^0|20^D|30^0|40^5|41^20|50^1", "10^1|20^D|30^0|40^5|41^20|50^1"})
            FindIndicator("010102")->evaluate(day, ConditionOf("010102", values));
        FindIndicator("010103")->evaluate(day, ConditionOf("010103", "10^0|20^D|30^0|40^5|41^20|42^60|50^1"));
    });
    EXPECT_EQ(day.Computations(), 3u);  // averages of 5, 20 and 60 bars
}

TEST(MarketDay, PassesAFailureOnAndForgetsIt) {
    MarketDay day(MarketOf(Flat({10, 20, 30})));
    const LinesKey key{"test", {}, Timeframe::Day, 0};
    std::atomic<int> failures = 0;
    OnThreads(4, [&](int) {
        try {
            day.Get(key, []() -> Lines { throw market::MarketError("damaged"); });
        } catch (const market::MarketError&) {
            ++failures;
        }
    });
    EXPECT_EQ(failures, 4);
    EXPECT_EQ(day.Get(key, [] { return OneLine(7); })->front().now[0], 7);
}

// Lines that are still being computed stay, however short memory is.
TEST(MarketDay, KeepsWhatIsBeingComputed) {
    MarketDay day(MarketOf(Flat({10, 20, 30})), 1);
    const auto outer = day.Get({"outer", {}, Timeframe::Day, 0}, [&] {
        return Lines(*day.Get({"inner", {}, Timeframe::Day, 0}, [] { return OneLine(7); }));
    });
    EXPECT_EQ(outer->front().now[0], 7);
}

TEST(MarketDay, ForgetsTheLeastRecentlyUsedLinesWhenMemoryIsShort) {
    // A line of 100 stocks takes 1,600 bytes: three fit, a fourth doesn't.
    MarketDay day(MarketOf(Flat({10, 20, 30})), 5000);
    const auto ask = [&](int key) {
        return day.Get({"test", {key}, Timeframe::Day, 0}, [&] { return OneLine(key); });
    };
    const auto kept = ask(1);
    ask(2), ask(3);
    ask(1);  // now 2 is the oldest
    ask(4);
    EXPECT_EQ(day.Computations(), 4u);
    ask(1), ask(3), ask(4);
    EXPECT_EQ(day.Computations(), 4u);
    ask(2);
    EXPECT_EQ(day.Computations(), 5u);
    EXPECT_EQ(kept->front().now[0], 1);  // whoever holds a line keeps it
}

}  // namespace

}  // namespace jogeon::indicators
