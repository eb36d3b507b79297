// Candle patterns, candle by candle, at the edges of their definition.

#include <gtest/gtest.h>

#include "tests/server/indicators/bars_of_tests.h"

namespace jogeon::indicators {

namespace {

struct Candle {
    double open, high, low, close;
};

// Five bars on the way down or up, then the candles.
std::vector<plain::Bar> After(bool fall, const std::vector<Candle>& candles) {
    std::vector<plain::Bar> bars = Flat(fall ? std::vector<double>{1500, 1400, 1300, 1200, 1100}
                                             : std::vector<double>{500, 600, 700, 800, 900});
    for (const Candle& candle : candles)
        bars.push_back({candle.open, candle.high, candle.low, candle.close, 100});
    return bars;
}

// The same seen upside down, around 1,000 won.
std::vector<Candle> UpsideDown(std::vector<Candle> candles) {
    for (Candle& candle : candles)
        candle = {2000 - candle.open, 2000 - candle.low, 2000 - candle.high, 2000 - candle.close};
    return candles;
}

struct Case {
    const char* what;
    std::vector<Candle> candles;
    const char* sign;  // '1', '0' or '?'
};

// Checks each case, and its image upside down after the opposite move.
void Check(const char* key, const std::string& variant, const char* mirrorKey,
           const std::string& mirrorVariant, const std::vector<Case>& cases, bool fall = true) {
    for (const Case& one : cases) {
        EXPECT_EQ(Signs(Evaluate(MarketOf(After(fall, one.candles)), key, variant + "20^D|30^0")), one.sign)
            << one.what;
        EXPECT_EQ(Signs(Evaluate(MarketOf(After(!fall, UpsideDown(one.candles))), mirrorKey,
                                 mirrorVariant + "20^D|30^0")),
                  one.sign)
            << one.what << ", upside down";
    }
}

TEST(CandlePatterns, SoldiersAndCrows) {
    const Candle first{1000, 1110, 990, 1100};
    const Candle second{1050, 1160, 1040, 1150};
    Check(
        "060101", "", "060102", "",
        {{"three soldiers", {first, second, {1100, 1210, 1090, 1200}}, "1"},
         {"opens at the ends of the bodies", {first, {1000, 1160, 990, 1150}, {1150, 1210, 1140, 1200}}, "1"},
         {"opens above the body before", {first, second, {1151, 1210, 1140, 1200}}, "0"},
         {"opens below the body before", {first, second, {1049, 1210, 1040, 1200}}, "0"},
         {"closes no higher", {first, second, {1100, 1160, 1090, 1150}}, "0"},
         {"the first is black", {{1100, 1110, 990, 1000}, second, {1100, 1210, 1090, 1200}}, "0"},
         {"a long shadow above", {first, second, {1100, 1260, 1090, 1200}}, "0"},
         {"a shadow of just 30 percent", {first, second, {1100, 1240, 1100, 1198}}, "1"}});
}

TEST(CandlePatterns, Engulfing) {
    Check("060201", "10^0|", "060201", "10^1|",
          {{"engulfs", {{1050, 1060, 1000, 1010}, {1005, 1070, 990, 1055}}, "1"},
           {"same ends, no larger body", {{1050, 1060, 1000, 1010}, {1010, 1070, 990, 1050}}, "0"},
           {"one end equal", {{1050, 1060, 1000, 1010}, {1010, 1070, 990, 1051}}, "1"},
           {"opens inside", {{1050, 1060, 1000, 1010}, {1011, 1090, 990, 1080}}, "0"},
           {"the first is white", {{1010, 1060, 1000, 1050}, {1005, 1070, 990, 1055}}, "0"}});
    Check("060201", "10^0|", "060201", "10^1|",
          {{"after the wrong move", {{1050, 1060, 1000, 1010}, {1005, 1070, 990, 1055}}, "0"}}, false);
}

TEST(CandlePatterns, HammerAndShootingStar) {
    Check("060202", "10^0|", "060202", "10^1|",
          {{"white", {{1000, 1020, 900, 1020}}, "1"},
           {"black", {{1020, 1020, 900, 1000}}, "1"},
           {"a shadow of twice the body", {{1000, 1020, 960, 1020}}, "1"},
           {"a shorter shadow", {{1000, 1020, 961, 1020}}, "0"},
           {"a tenth of the range above", {{1000, 1030, 930, 1020}}, "1"},
           {"more above", {{1000, 1031, 930, 1020}}, "0"},
           {"hardly a body", {{1000, 1004, 900, 1004}}, "0"},
           {"a halt", {{1000, 1000, 1000, 1000}}, "0"}});
}

TEST(CandlePatterns, MorningAndEveningStar) {
    const Candle fall{1100, 1110, 990, 1000};
    Check(
        "060203", "10^0|", "060203", "10^1|",
        {{"a star", {fall, {980, 1000, 960, 990}, {1000, 1080, 990, 1060}}, "1"},
         {"the star's body touches the close", {fall, {980, 1000, 960, 1000}, {1000, 1080, 990, 1051}}, "1"},
         {"the star's body is too long", {fall, {950, 1000, 940, 981}, {1000, 1080, 990, 1060}}, "0"},
         {"the star's body reaches up", {fall, {990, 1010, 980, 1001}, {1000, 1080, 990, 1060}}, "0"},
         {"closes at the middle", {fall, {980, 1000, 960, 990}, {1000, 1080, 990, 1050}}, "0"},
         {"the first has a short body",
          {{1100, 1210, 990, 1000}, {980, 1000, 960, 990}, {1000, 1080, 990, 1060}},
          "0"}});
}

TEST(CandlePatterns, Doji) {
    Check("060204", "", "060204", "",
          {{"none", {{1000, 1050, 950, 1000}}, "1"},
           {"a tenth of the range", {{1000, 1050, 950, 1010}}, "1"},
           {"more", {{1000, 1050, 950, 1011}}, "0"},
           {"a halt", {{1000, 1000, 1000, 1000}}, "0"}});
}

// Each pattern at exactly the number of bars that it needs, one less, and with a gap.
TEST(CandlePatterns, NeedTheirBars) {
    const struct {
        const char* key;
        const char* values;
        std::size_t bars;
    } cases[] = {{"060101", "20^D|30^0", 3},
                 {"060201", "10^1|20^D|30^0", 7},
                 {"060202", "10^0|20^D|30^0", 6},
                 {"060203", "10^0|20^D|30^0", 8},
                 {"060204", "20^D|30^0", 1}};
    for (const auto& one : cases) {
        std::vector<plain::Bar> bars = Flat(std::vector<double>(one.bars + 2, 1000));
        const auto signs = [&](std::size_t gap) {
            std::vector<plain::Bar> gapped = bars;
            gapped[gap] = {};
            // Another stock keeps the day of the gap a day of the market.
            market::MarketBuilder builder;
            market::Instrument stock, other;
            stock.code = "000010", other.code = "000020";
            AddStock(builder, stock, gapped, Weekdays(static_cast<int>(bars.size())));
            AddStock(builder, other, bars, Weekdays(static_cast<int>(bars.size())));
            return Signs(Evaluate(builder.Build(), one.key, one.values));
        };
        EXPECT_EQ(signs(1), "00") << one.key;  // exactly enough behind the gap
        EXPECT_EQ(signs(2), "?0") << one.key;
    }
    EXPECT_EQ(Signs(Evaluate(MarketOf(Flat({1000, 1000})), "060204", "20^D|30^2")), "?");
}

}  // namespace

}  // namespace jogeon::indicators
