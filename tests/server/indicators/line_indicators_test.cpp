// Every indicator of families T and B that looks at bars, against the plain formulas, stock by stock: on a
// market with gaps, late listings, stocks that stopped, halts and unfinished weeks and months.

#include <cmath>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "tests/server/indicators/bars_of_tests.h"

namespace jogeon::indicators {

namespace {

constexpr int kDays = 190;
constexpr int kStocks = 80;

// A restless stock: coarse prices, so that they meet averages and each other exactly; halts; gaps.
std::vector<plain::Bar> RandomBars(std::mt19937& random, int listed) {
    const auto roll = [&](int sides) { return static_cast<int>(random() % static_cast<unsigned>(sides)); };
    std::vector<plain::Bar> bars;
    double close = 1000 + 10 * roll(300);
    const int gapEvery = 30 + roll(200), drift = roll(3) - 1;
    for (int day = 0; day < listed; ++day) {
        const double before = close;
        close = std::max(100.0, before + 10 * (roll(9) - 4 + (roll(3) == 0 ? drift : 0)));
        const double open = std::max(100.0, before + 10 * (roll(7) - 3));
        const double high = std::max(open, close) + 10 * roll(4);
        const double low = std::max(50.0, std::min(open, close) - 10 * roll(4));
        plain::Bar bar{open, high, low, close, 100.0 * roll(50) * 1000};
        if (roll(12) == 0) bar = {before, before, before, before, 0}, close = before;
        if (roll(gapEvery) == 0) bar = {};
        bars.push_back(bar);
    }
    return bars;
}

std::shared_ptr<const market::Market> RandomMarket() {
    std::mt19937 random(20250430);
    market::MarketBuilder builder;
    for (int i = 0; i < kStocks; ++i) {
        market::Instrument stock;
        stock.code = std::to_string(100000 + 10 * i);
        // A quarter of the stocks is young, down to no bar at all.
        const int listed = i % 4 ? kDays : static_cast<int>(random() % 40);
        AddStock(builder, stock, RandomBars(random, listed), Weekdays(kDays));
    }
    return builder.Build();
}

// The unbroken bars of one stock up to `bar`.
std::vector<plain::Bar> RunOf(const market::Bars& bars, std::size_t stock, int bar) {
    using market::PriceField;
    std::vector<plain::Bar> run;
    for (; bar >= 0 && !std::isnan(bars.Row(PriceField::Close, bar)[stock]); --bar)
        run.insert(run.begin(),
                   {bars.Row(PriceField::Open, bar)[stock], bars.Row(PriceField::High, bar)[stock],
                    bars.Row(PriceField::Low, bar)[stock], bars.Row(PriceField::Close, bar)[stock],
                    bars.Row(PriceField::Volume, bar)[stock]});
    return run;
}

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
};

const std::pair<Timeframe, char> kTimeframes[] = {
    {Timeframe::Day, 'D'}, {Timeframe::Week, 'W'}, {Timeframe::Month, 'M'}};

// How often each answer came, over the comparisons of one case.
struct Tally {
    int unknown = 0, no = 0, yes = 0;
};

void Compare(MarketDay& day, const Case& tested, int variant, Timeframe timeframe, const std::string& values,
             int ago, Tally& tally) {
    const Verdict verdict = FindIndicator(tested.key)->evaluate(day, ConditionOf(tested.key, values));
    const market::Bars& bars = day.GetMarket().BarsOf(timeframe);
    const plain::Rule rule =
        plain::Formulas().at(tested.key)(RolesOf(values)).at(static_cast<std::size_t>(variant));
    for (std::size_t i = 0; i < day.Instruments(); ++i) {
        const auto run = RunOf(bars, i, bars.Count() - 1 - ago);
        const plain::Answer expected = plain::Judge(rule, run);
        const bool known = expected != plain::Answer::Unknown;
        const double value = known ? rule.line(run) : market::kMissing;
        ASSERT_EQ(verdict.known.Get(i), known) << tested.key << ' ' << values << " stock " << i;
        ASSERT_EQ(verdict.truth.Get(i), expected == plain::Answer::True)
            << tested.key << ' ' << values << " stock " << i << " value " << verdict.value[i];
        ASSERT_TRUE(known ? std::abs(verdict.value[i] - value) <= 1e-9 * std::max(1.0, std::abs(value))
                          : std::isnan(verdict.value[i]))
            << tested.key << ' ' << values << " stock " << i << ": " << verdict.value[i] << " for " << value;
        ++(!known ? tally.unknown : verdict.truth.Get(i) ? tally.yes : tally.no);
    }
}

// All variants of one case over all timeframes.
void CompareVariants(MarketDay& day, const Case& tested) {
    const Indicator& indicator = *FindIndicator(tested.key);
    for (int variant = 0; variant < indicator.variants; ++variant) {
        Tally tally;
        for (const auto& [timeframe, letter] : kTimeframes) {
            const std::string own = timeframe == Timeframe::Day ? tested.values : tested.shortValues;
            for (int ago : {0, 1, 4, 60}) {
                if (own.empty()) continue;
                const std::string values =
                    (indicator.variants > 1 ? "10^" + std::to_string(variant) + "|" : "") + "20^" + letter +
                    "|30^" + std::to_string(ago) + "|" + own;
                Compare(day, tested, variant, timeframe, values, ago, tally);
                if (testing::Test::HasFatalFailure()) return;
            }
        }
        // Without all three answers the comparison would prove little.
        EXPECT_TRUE(tally.unknown && tally.no && tally.yes) << indicator.key << " variant " << variant;
    }
}

TEST(LineIndicators, AgreeWithThePlainFormulas) {
    MarketDay day(RandomMarket());
    for (const Case& one : kCases) CompareVariants(day, one);
}

TEST(LineIndicators, EveryOneOfBothFamiliesIsCompared) {
    std::set<std::string_view> compared = {"040301"};  // has no bars: figures_test.cpp
    for (const Case& one : kCases) compared.insert(one.key);
    for (const Indicator& indicator : AllIndicators())
        EXPECT_TRUE(compared.contains(indicator.key) || indicator.family == 'P' || indicator.family == 'F' ||
                    indicator.family == 'R')
            << indicator.key;
}

// Worked out by hand, so that a mistake made twice doesn't pass.
TEST(LineIndicators, GiveTheValuesOfPaperAndPencil) {
    const struct {
        const char* key;
        const char* values;
        std::vector<plain::Bar> bars;
        double value;
    } cases[] = {
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
    };
    for (const auto& one : cases) {
        const Verdict verdict = Evaluate(MarketOf(one.bars), one.key, one.values);
        EXPECT_NEAR(verdict.value[0], one.value, 1e-9) << one.key;
    }
}

TEST(LineIndicators, RefuseParametersWithoutSense) {
    const auto market = MarketOf(Flat({10, 20, 30}));
    const struct {
        const char* key;
        const char* values;
    } cases[] = {
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
    for (const auto& one : cases)
        EXPECT_THROW(Evaluate(market, one.key, one.values), BadCondition) << one.key << ' ' << one.values;
}

}  // namespace

}  // namespace jogeon::indicators
