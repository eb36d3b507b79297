#include "server/market/market_builder.h"

#include <limits>

#include "tests/server/market/market_values.h"

namespace jogeon::market {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

Instrument Stock(std::string code) {
    Instrument stock;
    stock.code = std::move(code);
    return stock;
}

TEST(MarketBuilder, PutsStocksInOrderOfCodeAndBarsInOrderOfTime) {
    MarketBuilder builder;
    const int b = builder.AddInstrument(Stock("900000"));
    const int k = builder.AddInstrument(Stock("00088K"));
    const int a = builder.AddInstrument(Stock("000880"));
    builder.AddBar(b, 20240305, 20, 25, 15, 21, 7);
    builder.AddBar(a, 20240304, 10, 12, 9, 11, 5);
    builder.AddBar(b, 20240229, 30, 30, 30, 30, 1);
    builder.AddBar(k, 20240304, 40, 44, 40, 41, 9);
    const auto market = builder.Build();

    EXPECT_EQ(market->Find("000880"), 0);
    EXPECT_EQ(market->Find("00088K"), 1);
    EXPECT_EQ(market->Find("900000"), 2);
    EXPECT_EQ(market->Find("00088"), -1);
    EXPECT_EQ(market->Find("999999"), -1);
    EXPECT_EQ(market->LastDate(), 20240305);
    EXPECT_THAT(BarTexts(*market, Timeframe::Day, "900000"),
                ElementsAre("20240229: 30 30 30 30 1", "20240304: -", "20240305: 20 25 15 21 7"));
    EXPECT_THAT(BarTexts(*market, Timeframe::Day, "00088K"),
                ElementsAre("20240229: -", "20240304: 40 44 40 41 9", "20240305: -"));
}

TEST(MarketBuilder, TheLastOfTwoBarsCountsAndIsReported) {
    MarketBuilder builder;
    const int a = builder.AddInstrument(Stock("000010"));
    builder.AddBar(a, 20240304, 10, 10, 10, 10, 1);
    builder.AddBar(a, 20240305, 11, 11, 11, 11, 3);
    builder.AddBar(a, 20240304, 12, 12, 12, 12, 4);
    EXPECT_EQ(BarText(*builder.Build(), Timeframe::Day, "000010", 0), "12 12 12 12 4");
    const auto duplicates = builder.FindDuplicates();
    ASSERT_EQ(duplicates.size(), 1u);
    EXPECT_EQ(duplicates[0].code, "000010");
    EXPECT_EQ(duplicates[0].date, 20240304);
}

TEST(MarketBuilder, AnEmptyMarketHasNoDates) {
    const auto market = MarketBuilder().Build();
    EXPECT_EQ(market->LastDate(), 0);
    EXPECT_EQ(market->AsOf(20240304), nullptr);
    EXPECT_EQ(market->Find("000010"), -1);
}

TEST(MarketBuilder, RefusesWhatIsNoStockAndNoBar) {
    MarketBuilder builder;
    const int a = builder.AddInstrument(Stock("000010"));
    EXPECT_THAT(ErrorOf([&] { builder.AddInstrument(Stock("000010")); }), HasSubstr("000010"));
    for (const char* code : {"", "00001", "0000100", "00a010", "00 010"})
        EXPECT_NE(ErrorOf([&] { builder.AddInstrument(Stock(code)); }), "") << code;
    EXPECT_THAT(ErrorOf([&] { builder.AddBar(a, 20240230, 1, 1, 1, 1, 1); }), HasSubstr("20240230"));
    EXPECT_THAT(ErrorOf([&] { builder.AddBar(a, 20240304, 1, 1, 2, 1, 1); }), HasSubstr("high is below"));
}

TEST(MarketBuilder, FitsBarsOrSaysWhyNot) {
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    struct Case {
        Bar bar;
        const char* fault;
        BarChange change = BarChange::None;
        Bar fitted = {};
    };
    const Case cases[] = {
        {{10, 12, 9, 11, 5}, "", BarChange::None, {10, 12, 9, 11, 5}},
        {{10, 10, 10, 10, 0}, "", BarChange::None, {10, 10, 10, 10, 0}},
        {{0, 0, 0, 45000, 0}, "", BarChange::Halted, {45000, 45000, 45000, 45000, 0}},
        {{0, 0, 0, 45000, 3}, "not positive"},
        {{0, 0, 0, 0, 0}, "not positive"},
        {{10, 12, -9, 11, 5}, "not positive"},
        {{10, 12, 9, 11, -5}, "negative"},
        {{10, 9, 12, 11, 5}, "below the low"},
        // A close that was adjusted apart from its high: a won above it.
        {{6455, 6524, 6445, 6525, 5}, "", BarChange::Widened, {6455, 6525, 6445, 6525, 5}},
        {{990, 1010, 1000, 1005, 5}, "", BarChange::Widened, {990, 1010, 990, 1005, 5}},
        {{1000, 1010, 1000, 1021, 5}, "outside"},
        {{989, 1010, 1000, 1005, 5}, "outside"},
        {{10, kInfinite, 9, 11, 5}, "no number"},
        {{10, 12, 9, 11, kMissing}, "no number"},
    };
    for (const Case& c : cases) {
        Bar bar = c.bar;
        const BarVerdict verdict = FitBar(bar);
        SCOPED_TRACE(testing::Message()
                     << c.bar.open << " " << c.bar.high << " " << c.bar.low << " " << c.bar.close);
        if (*c.fault) {
            EXPECT_THAT(std::string(verdict.fault), HasSubstr(c.fault));
            continue;
        }
        EXPECT_EQ(verdict.fault, "");
        EXPECT_EQ(verdict.change, c.change);
        EXPECT_THAT((std::vector{bar.open, bar.high, bar.low, bar.close, bar.volume}),
                    ElementsAre(c.fitted.open, c.fitted.high, c.fitted.low, c.fitted.close, c.fitted.volume));
    }
}

}  // namespace
}  // namespace jogeon::market
