// Every indicator that looks at bars, against the formulas of tests/oracle, stock by stock: on a market with
// gaps, late listings, stocks that stopped, halts and unfinished weeks and months.

#include <cmath>
#include <cstdlib>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "tests/server/indicators/bars_of_tests.h"
#include "tests/server/market/scratch_folder.h"

namespace jogeon::indicators {

namespace {

constexpr int kDays = 190;
constexpr int kStocks = 80;

// A restless stock: coarse prices, so that they meet averages and each other exactly; halts; gaps.
std::vector<Bar> RandomBars(std::mt19937& random, int listed) {
    const auto roll = [&](int sides) { return static_cast<int>(random() % static_cast<unsigned>(sides)); };
    std::vector<Bar> bars;
    double close = 1000 + 10 * roll(300);
    const int gapEvery = 30 + roll(200), drift = roll(3) - 1;
    for (int day = 0; day < listed; ++day) {
        const double before = close;
        close = std::max(100.0, before + 10 * (roll(9) - 4 + (roll(3) == 0 ? drift : 0)));
        const double open = std::max(100.0, before + 10 * (roll(7) - 3));
        const double high = std::max(open, close) + 10 * roll(4);
        const double low = std::max(50.0, std::min(open, close) - 10 * roll(4));
        Bar bar{open, high, low, close, 100.0 * roll(50) * 1000};
        if (roll(12) == 0) bar = {before, before, before, before, 0}, close = before;
        if (roll(gapEvery) == 0) bar = {};
        bars.push_back(bar);
    }
    return bars;
}

// A random market, twice: as the indicators see it, and as the tables that the oracle reads.
struct RandomMarket {
    RandomMarket() {
        std::mt19937 random(20250430);
        const std::vector<int> dates = Weekdays(kDays);
        market::MarketBuilder builder;
        for (int i = 0; i < kStocks; ++i) {
            market::Instrument stock;
            stock.code = std::to_string(100000 + 10 * i);
            symbols += stock.code + ",,\n";
            // A quarter of the stocks is young, down to no bar at all.
            const int listed = i % 4 ? kDays : static_cast<int>(random() % 40);
            const std::vector<Bar> bars = RandomBars(random, listed);
            for (std::size_t day = 0; day < bars.size(); ++day)
                daily += Line(stock.code, dates[dates.size() - bars.size() + day], bars[day]);
            AddStock(builder, stock, bars, dates);
        }
        market = builder.Build();
    }

    static std::string Line(const std::string& code, int date, const Bar& bar) {
        if (bar.close == 0) return {};
        char line[100];
        std::snprintf(line, sizeof line, "%d-%02d-%02d,%s,%.0f,%.0f,%.0f,%.0f,%.0f\n", date / 10000,
                      date / 100 % 100, date % 100, code.c_str(), bar.open, bar.high, bar.low, bar.close,
                      bar.volume);
        return line;
    }

    std::string daily = "date,code,open,high,low,close,volume\n";
    std::string symbols = "code,shares,listing_date\n";
    std::shared_ptr<const market::Market> market;
};

struct Case {
    const char* key;
    const char* values;       // without roles 10, 20, 30
    const char* shortValues;  // the same for weeks and months, where bars are few
};

const Case kCases[] = {
    {"010101", "40^5|50^0", "40^3|50^0"},
    {"010101", "40^20|50^1", "40^4|50^1"},
    {"010102", "40^5|41^20|50^0", "40^2|41^3|50^0"},
    {"010102", "40^3|41^10|50^1", "40^2|41^4|50^1"},
    {"010103", "40^3|41^5|42^10|50^0", "40^1|41^2|42^3|50^0"},
    {"010103", "40^3|41^5|42^10|50^1", "40^1|41^2|42^3|50^1"},
    {"010104", "40^5|41^2|50^0", "40^2|41^2|50^0"},
    {"010104", "40^5|41^3|50^1", "40^2|41^1|50^1"},
    {"010105", "40^20|60^99|61^101", "40^3|60^99|61^101"},
    {"010201", "40^14|60^50|61^60", "40^2|60^50|61^60"},
    {"010202", "40^12|41^26|42^9", "40^2|41^3|42^2"},
    {"010203", "40^12|41^5|42^5|60^50", "40^2|41^2|42^2|60^50"},
    {"010204", "40^14|60^0|61^80", "40^3|60^0|61^80"},
    {"010205", "40^14|60^-50|61^-20", "40^3|60^-50|61^-20"},
    {"010206", "40^12|60^0|61^5", "40^2|60^0|61^5"},
    {"010301", "40^20|60^1.5|61^10", "40^4|60^0.5|61^8"},
    {"010302", "40^14", "40^2"},
    {"010303", "40^7|60^20|61^30", "40^2|60^30|61^60"},
    {"010304", "40^9|41^26|42^52", "40^1|41^2|42^3"},
    {"010401", "40^20|60^100|61^150", "40^3|60^100|61^300"},
    {"010402", "40^9", "40^3"},
    {"040101", "40^20|50^1", "40^2|50^1"},
    {"040101", "40^10|50^2", "40^2|50^2"},
    {"040102", "60^1500|61^2500", ""},
    {"040103", "60^0|61^2", "60^0|61^2"},
    {"040104", "40^20|60^0|61^10", "40^2|60^-3|61^3"},
    {"040105", "50^1|60^0.5", "50^1|60^0.1"},
    {"040105", "50^2|60^0.1", "50^2|60^0.1"},
    {"040106", "40^3", "40^2"},
    {"040107", "40^20|60^0|61^5", "40^3|60^0|61^5"},
    {"040201", "40^20|60^150", "40^3|60^110"},
    {"040202", "60^100|61^200", "60^100|61^200"},
    {"040203", "40^5|60^60", "40^2|60^100"},
    {"060101", "50^0", "50^0"},
    {"060102", "50^0", "50^0"},
    {"060201", "50^0", "50^0"},
    {"060202", "50^0", "50^0"},
    {"060203", "50^0", "50^0"},
    {"060204", "50^0", "50^0"},
};

// The verdicts on all variants of one case by days, weeks and months, a line each. Patterns are rare: they
// are looked for on a hundred days.
std::string LinesOf(MarketDay& day, const Case& tested) {
    const Indicator& indicator = *FindIndicator(tested.key);
    std::vector<int> agos = {0, 1, 4, 60};
    if (indicator.family == 'P')
        for (int ago = 5; ago < 100; ++ago) agos.push_back(ago);
    std::string lines;
    for (int variant = 0; variant < indicator.variants; ++variant) {
        std::set<char> answers;
        for (const char timeframe : {'D', 'W', 'M'})
            for (const int ago : agos) {
                const std::string own = timeframe == 'D' ? tested.values : tested.shortValues;
                if (own.empty()) continue;
                const std::string values = "10^" + std::to_string(variant) + "|20^" + timeframe + "|30^" +
                                           std::to_string(ago) + "|" + own;
                const std::string signs = Signs(indicator.evaluate(day, ConditionOf(tested.key, values)));
                answers.insert(signs.begin(), signs.end());
                lines += std::string(tested.key) + " " + values + " " + signs + "\n";
            }
        EXPECT_EQ(answers.size(), 3u) << tested.key << ": a comparison without all answers proves little";
    }
    return lines;
}

TEST(LineIndicators, AgreeWithTheOracle) {
    if (std::system("command -v python3 >/dev/null") != 0) GTEST_SKIP() << "python3 is not installed";
    const RandomMarket random;
    const market::ScratchFolder folder;
    folder.WriteGzipped("daily.csv.gz", random.daily);
    folder.Write("symbols.csv", random.symbols);
    MarketDay day(random.market);
    std::string verdicts;
    for (const Case& one : kCases) verdicts += LinesOf(day, one);
    folder.Write("verdicts.txt", verdicts);
    const std::string command = "python3 " JOGEON_ORACLE "/verdicts.py " + (folder / "").string() + " >" +
                                (folder / "said").string() + " 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0) << folder.Read("said");
}

TEST(LineIndicators, EveryOneIsCompared) {
    std::set<std::string_view> compared = {"040301"};  // has no bars: figures_test.cpp
    for (const Case& one : kCases) compared.insert(one.key);
    for (const Indicator& indicator : AllIndicators())
        EXPECT_TRUE(compared.contains(indicator.key) || indicator.family == 'F' || indicator.family == 'R')
            << indicator.key;
}

// Worked out by hand, so that a mistake made twice doesn't pass.
TEST(LineIndicators, GiveTheValuesOfPaperAndPencil) {
    const std::tuple<const char*, const char*, std::vector<Bar>, double> cases[] = {
        // Changes 1, -1, 2: gains start at 0.5, then 0.5 + (2 - 0.5) / 2 = 1.25; losses 0.5, then 0.25.
        {"010201", "10^0|20^D|30^0|40^2|60^0", Flat({10, 11, 10, 12}), 100 * 1.25 / 1.5},
        // Starts with (10 + 20) / 2; then 15 + 2/3 * (30 - 15).
        {"010101", "10^2|20^D|30^0|40^2|50^1", Flat({10, 20, 30}), 30},
        {"010102", "10^0|20^D|30^0|40^2|41^3|50^1", Flat({10, 20, 30, 60}), 25 + 2.0 / 3 * (60 - 25)},
        // EMA(1) is the close. EMA(2): 15, 25, 45. MACD: 5, 5, 15.
        {"010202", "10^2|20^D|30^0|40^1|41^2", Flat({10, 20, 30, 60}), 60 - (25 + 2.0 / 3 * 35)},
        // Typical prices 10, 20, 30: mean 20, mean distance 20/3; 10 / (0.015 * 20/3) = 100.
        {"010204", "10^0|20^D|30^0|40^3|60^0", Flat({10, 20, 30}), 100},
        // Highest 120, lowest 80, close 110.
        {"010205", "10^0|20^D|30^0|40^2|60^-100", {{100, 120, 90, 100, 1}, {100, 115, 80, 110, 1}}, -25},
        {"010203", "10^3|20^D|30^0|40^2|41^1|60^0", {{100, 120, 90, 100, 1}, {100, 115, 80, 110, 1}}, 75},
        // Rising 300, unchanged 100, falling 200: (300 + 50) / (200 + 50).
        {"010401",
         "10^0|20^D|30^0|40^3|60^0",
         {{10, 10, 10, 10, 9}, {11, 11, 11, 11, 300}, {11, 11, 11, 11, 100}, {10, 10, 10, 10, 200}},
         140},
        // Mean 20, deviation sqrt(200 / 3); the width of one deviation on both sides.
        {"010301", "10^4|20^D|30^0|40^3|60^1.0|61^99", Flat({10, 20, 30}), 10 * std::sqrt(200.0 / 3)},
        // +DM 10, 0 (neither side wins), 5; TR 15, 20, 15. Smoothed: 5, 5 and 17.5, 16.25.
        {"010302",
         "10^0|20^D|30^0|40^2",
         {{100, 105, 95, 100, 1}, {110, 115, 105, 110, 1}, {110, 120, 100, 110, 1}, {110, 125, 110, 120, 1}},
         100 * 5 / 16.25},
        // +DM 10, 0, 20; -DM 0, 10, 0: equal at first, then smoothed to 12.5 and 2.5; the mean of 0 and
        // 200/3.
        {"010303",
         "10^0|20^D|30^0|40^2|60^0",
         {{100, 105, 95, 100}, {100, 115, 90, 100}, {100, 117, 80, 100}, {100, 137, 80, 100}},
         100.0 / 3},
        {"010103", "10^0|20^D|30^0|40^1|41^2|42^3|50^0", Flat({10, 20, 30, 60}), 60},
        {"010104", "10^0|20^D|30^0|40^2|41^1|50^0", Flat({10, 20, 40}), 30},
        {"010105", "10^0|20^D|30^0|40^2|60^0", Flat({10, 30}), 150},
        {"010206", "10^0|20^D|30^0|40^2|60^0", Flat({10, 20, 25}), 150},
        {"010304", "10^0|20^D|30^0|40^2|41^3|42^4", Flat({5, 10, 20, 40}), 30},
        {"010402", "10^0|20^D|30^0|40^2", Flat({10, 20, 30, 25}), 100},
        {"040101", "10^0|20^D|30^0|40^1|50^1", {{100, 120, 90, 100}, {100, 115, 80, 110}}, 115},
        {"040101", "10^1|20^D|30^0|40^1|50^1", {{100, 120, 90, 100}, {100, 115, 80, 110}}, 80},
        {"040102", "20^D|30^0|60^0|61^99", Flat({10, 11}), 11},
        {"040103", "20^D|30^0|60^0|61^99", Flat({20, 10, 12}), 20},
        {"040104", "20^D|30^0|40^2|60^0|61^99", Flat({10, 20, 15}), 50},
        {"040105", "10^0|20^D|30^0|50^1|60^0", {{100, 120, 90, 100}, {110, 115, 80, 110}}, 10},
        {"040105", "10^0|20^D|30^0|50^2|60^0", {{100, 125, 90, 100}, {110, 115, 80, 110}}, -12},
        {"040106", "10^0|20^D|30^0|40^1", Flat({10, 11, 12}), 2},
        {"040107", "10^0|20^D|30^0|40^2|60^0|61^99", {{100, 125, 90, 100}, {100, 115, 80, 110}}, 12},
        {"040201", "20^D|30^0|40^2|60^0", {{1, 1, 1, 1, 100}, {1, 1, 1, 1, 300}, {1, 1, 1, 1, 500}}, 250},
        {"040202", "20^D|30^0|60^0|61^999", {{1, 1, 1, 1, 100}, {1, 1, 1, 1, 150}}, 150},
        {"040203", "20^D|30^0|40^2|60^0", {{1000, 1000, 1000, 1000, 1e5}, {3000, 3000, 3000, 3000, 1e5}}, 2},
    };
    for (const auto& [key, values, bars, value] : cases) {
        const Verdict verdict = Evaluate(MarketOf(bars), key, values);
        EXPECT_NEAR(verdict.value[0], value, 1e-9) << key;
    }
}

TEST(LineIndicators, RefuseParametersWithoutSense) {
    const auto market = MarketOf(Flat({10, 20, 30}));
    const std::pair<const char*, const char*> cases[] = {
        {"010201", "10^0|20^D|30^0|60^30"},                // no window
        {"010201", "10^0|20^D|30^0|40^0|60^30"},           // an empty one
        {"010201", "10^0|20^H|30^0|40^14|60^30"},          // no such timeframe
        {"010201", "10^0|20^D|30^-1|40^14|60^30"},         // in the future
        {"010201", "10^5|20^D|30^0|40^14|60^30"},          // no such variant
        {"010201", "10^2|20^D|30^0|40^14|60^70|61^30"},    // a range upside down
        {"010103", "10^0|20^D|30^0|40^5|41^5|42^9|50^0"},  // averages that can't be in order
        {"010202", "10^0|20^D|30^0|40^26|41^12|42^9"},     // fast slower than slow
        {"010101", "10^0|20^D|30^0|40^5|50^2"},            // no such average
        {"010203", "10^0|20^D|30^0|40^5|41^100|42^3"},     // a smoothing beyond reason
    };
    for (const auto& [key, values] : cases)
        EXPECT_THROW(Evaluate(market, key, values), BadCondition) << key << ' ' << values;
}

}  // namespace

}  // namespace jogeon::indicators
