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
    const int b = builder.AddInstrument(Stock("000020"));
    builder.AddBar(a, 20240304, 10, 10, 10, 10, 1);
    builder.AddBar(b, 20240304, 20, 20, 20, 20, 2);
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

// Thursday 2024-02-29 to Friday 2024-03-08. The Friday of the first week is a holiday, so that the week ends
// on the last day of February.
class Periods : public testing::Test {
protected:
    Periods() {
        const int full = builder_.AddInstrument(Stock("000010"));
        builder_.AddBar(full, 20240229, 10, 15, 9, 12, 100);
        builder_.AddBar(full, 20240304, 13, 14, 11, 14, 200);
        builder_.AddBar(full, 20240305, 14, 20, 13, 15, 300);
        builder_.AddBar(full, 20240308, 15, 16, 8, 9, 400);
        const int gaps = builder_.AddInstrument(Stock("000020"));  // neither the first nor the last day
        builder_.AddBar(gaps, 20240305, 50, 55, 45, 52, 10);
        const int late = builder_.AddInstrument(Stock("000030"));  // listed on the last day, then halted
        builder_.AddBar(late, 20240308, 0, 0, 0, 70, 0);
        const int gone = builder_.AddInstrument(Stock("000040"));  // never heard of after February
        builder_.AddBar(gone, 20240229, 5, 6, 4, 5, 1);
    }

    MarketBuilder builder_;
};

TEST_F(Periods, WeeksTakeInWhatIsKnown) {
    const auto market = builder_.Build();
    EXPECT_THAT(BarTexts(*market, Timeframe::Week, "000010"),
                ElementsAre("20240229: 10 15 9 12 100", "20240308: 13 20 8 9 900"));
    EXPECT_THAT(BarTexts(*market, Timeframe::Week, "000020"),
                ElementsAre("20240229: -", "20240308: 50 55 45 52 10"));
    EXPECT_THAT(BarTexts(*market, Timeframe::Week, "000030"),
                ElementsAre("20240229: -", "20240308: 70 70 70 70 0"));
    EXPECT_THAT(BarTexts(*market, Timeframe::Week, "000040"),
                ElementsAre("20240229: 5 6 4 5 1", "20240308: -"));
}

TEST_F(Periods, MonthsTakeInWhatIsKnown) {
    const auto market = builder_.Build();
    EXPECT_THAT(BarTexts(*market, Timeframe::Month, "000010"),
                ElementsAre("20240229: 10 15 9 12 100", "20240308: 13 20 8 9 900"));
    builder_.AddBar(0, 20240329, 9, 30, 9, 25, 50);
    EXPECT_THAT(BarTexts(*builder_.Build(), Timeframe::Month, "000010"),
                ElementsAre("20240229: 10 15 9 12 100", "20240329: 13 30 8 25 950"));
    EXPECT_THAT(BarTexts(*builder_.Build(), Timeframe::Month, "000020"),
                ElementsAre("20240229: -", "20240329: 50 55 45 52 10"));
}

TEST_F(Periods, AsOfLeavesThemPartial) {
    const auto market = builder_.Build()->AsOf(20240305);
    ASSERT_TRUE(market);
    EXPECT_EQ(market->LastDate(), 20240305);
    EXPECT_THAT(BarTexts(*market, Timeframe::Week, "000010"),
                ElementsAre("20240229: 10 15 9 12 100", "20240305: 13 20 11 15 500"));
    EXPECT_THAT(BarTexts(*market, Timeframe::Month, "000030"), ElementsAre("20240229: -", "20240305: -"));
}

}  // namespace
}  // namespace jogeon::market
