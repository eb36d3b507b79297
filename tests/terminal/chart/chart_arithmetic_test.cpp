// The arithmetic of a chart: the window of bars, scales, axis and folding.
#include <gmock/gmock.h>

#include "server/market/calendar.h"
#include "terminal/chart/bar_fold.h"
#include "terminal/chart/date_axis.h"
#include "terminal/chart/scene.h"
#include "terminal/chart/study.h"
#include "terminal/chart/value_scale.h"
#include "terminal/texts/value_texts.h"

namespace jogeon::terminal::chart {
namespace {

using testing::ElementsAre;

TEST(BarWindowTest, ZoomKeepsTheBarUnderThePointer) {
    for (const double x : {100.0, 431.0, 799.0})
        for (const double factor : {1.15, 0.8, 3.0}) {
            BarWindow window;
            window.SetWidth(800);
            window.SetBars(7500);
            window.PanBars(500);
            const int bar = window.BarAt(x);
            window.ZoomAt(x, factor);
            EXPECT_EQ(window.BarAt(x), bar) << x << " by " << factor;
        }
}

TEST(BarWindowTest, NeverLeavesTheBars) {
    struct Case {
        const char* what;
        int bars;
        void (*move)(BarWindow& window);
        int first, end;  // in view
    };
    const Case cases[] = {
        {"new", 1000, [](BarWindow&) {}, 901, 1000},
        {"past the newest", 1000, [](BarWindow& window) { window.Pan(-5000); }, 901, 1000},
        {"past the oldest", 1000, [](BarWindow& window) { window.Pan(50000); }, 0, 100},
        {"oldest", 1000, [](BarWindow& window) { window.ToOldest(); }, 0, 100},
        {"there and back", 1000,
         [](BarWindow& window) {
             window.ToOldest();
             window.ToNewest();
         },
         901, 1000},
        {"all the way out", 1000, [](BarWindow& window) { window.ZoomAt(400, 1e-6); }, 0, 1000},
        {"all the way in", 1000, [](BarWindow& window) { window.ZoomAtEnd(1e6); }, 989, 1000},
        {"few bars stand at the right and are wide", 20, [](BarWindow& window) { window.ZoomAt(0, 0.01); }, 0,
         20},
        {"one bar", 1, [](BarWindow& window) { window.Pan(300); }, 0, 1},
        {"no bar", 0, [](BarWindow& window) { window.ZoomAt(3, 2); }, 0, 0},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        BarWindow window;
        window.SetBars(one.bars);  // before the width is known, as in a new chart
        window.SetWidth(800);
        one.move(window);
        EXPECT_EQ(window.FirstVisible(), one.first);
        EXPECT_EQ(window.EndVisible(), one.end);
        EXPECT_EQ(window.BarAt(0), one.bars ? one.first : -1);
    }
    BarWindow window;
    window.SetWidth(800);
    window.SetBars(20);
    EXPECT_DOUBLE_EQ(window.BarWidth(), BarWindow::kWidthOfFew);
    EXPECT_DOUBLE_EQ(window.CentreOf(19), 800 - (BarWindow::kRoom + 0.5) * BarWindow::kWidthOfFew);
    window.SetBars(1000);
    EXPECT_DOUBLE_EQ(window.BarWidth(), BarWindow::kFirstBarWidth) << "few bars leave no trace";
}

TEST(BarWindowTest, ShowsTheNewestBarWhereThereIsHardlyRoomForIt) {
    for (const double width : {1.0, 30.0, 100.0}) {
        BarWindow window;
        window.SetWidth(width);
        window.SetBars(1000);
        window.ZoomAtEnd(1e6);
        EXPECT_EQ(window.BarAt(width - 0.1), 999) << width;
    }
}

TEST(BarWindowTest, KeepsTheRightEdgeWhenItsWidthChanges) {
    BarWindow window;
    window.SetWidth(800);
    window.SetBars(1000);
    window.PanBars(200);
    const int last = window.BarAt(799.9);
    window.SetWidth(500);
    EXPECT_EQ(window.BarAt(499.9), last);
}

TEST(ValueScaleTest, TicksAreNiceAndFarEnoughApart) {
    struct Case {
        ValueRange range;
        double height, apart, least;
        std::vector<double> ticks;
    };
    const Case cases[] = {
        {{50'100, 71'000}, 400, 60, 1, {55'000, 60'000, 65'000, 70'000}},
        {{980, 1'020}, 200, 40, 1, {980, 990, 1'000, 1'010, 1'020}},
        {{10, 12}, 400, 20, 1, {10, 11, 12}},  // no parts of a won
        {{-1.2, 0.9}, 200, 40, 0, {-1, -0.5, 0, 0.5}},
        {{500, 500}, 100, 30, 1, {495, 500, 505}},
    };
    for (const Case& one : cases) {
        const ValueScale scale(one.range, 0, one.height);
        EXPECT_THAT(scale.Ticks(one.apart, one.least),
                    testing::Pointwise(testing::DoubleNear(1e-9), one.ticks));
    }
    const ValueScale scale({100, 200}, 50, 250);
    EXPECT_DOUBLE_EQ(scale.YOf(100), 250);
    EXPECT_DOUBLE_EQ(scale.YOf(200), 50);
    EXPECT_DOUBLE_EQ(scale.ValueAt(scale.YOf(137)), 137);
    EXPECT_TRUE(std::isfinite(ValueScale({}, 0, 100).YOf(1))) << "nothing to show";
}

TEST(ValueScaleTest, NumbersAreWrittenWithSeparators) {
    EXPECT_EQ(NumberText(0), "0");
    EXPECT_EQ(NumberText(-0.2), "0");
    EXPECT_EQ(NumberText(999.4), "999");
    EXPECT_EQ(NumberText(999.6), "1,000");
    EXPECT_EQ(NumberText(1'234'567), "1,234,567");
    EXPECT_EQ(NumberText(-1'234.5, 2), "-1,234.50");
    EXPECT_EQ(NumberText(market::kMissing), "");
    EXPECT_EQ(PercentText(1.254), "+1.25%");
    EXPECT_EQ(PercentText(-0.001), "0.00%");
    EXPECT_EQ(VolumeText(500'000, 999'999), "500,000");
    EXPECT_EQ(VolumeText(500'000, 1'500'000), "500K") << "as its neighbours on the axis";
}

// The weekdays from a date on.
Bars WeekdaysFrom(int date, int count) {
    Bars bars;
    for (int day = market::DayNumber(date); static_cast<int>(bars.size()) < count; ++day)
        if (market::Weekday(market::DateOfDay(day)) < 5)
            bars.push_back({market::DateOfDay(day), 1, 1, 1, 1, 1});
    return bars;
}

TEST(DateAxisTest, NamesWhatFindsRoom) {
    const auto texts = [](const Bars& bars, double barWidth, double width) {
        BarWindow window;
        window.SetBars(static_cast<int>(bars.size()));
        window.SetWidth(width);
        window.ZoomAtEnd(barWidth / window.BarWidth());
        std::vector<std::string> named;
        for (const DateTick& tick : DateTicks(bars, window, 60)) {
            const int date = bars[static_cast<std::size_t>(tick.bar)].date;
            named.push_back(tick.names == DateTick::Names::Year    ? std::to_string(date / 10000)
                            : tick.names == DateTick::Names::Month ? std::to_string(date / 100 % 100) + "m"
                                                                   : std::to_string(date % 100));
        }
        return named;
    };
    // 20231218 was a Monday.
    EXPECT_THAT(texts(WeekdaysFrom(20231218, 13), 60, 900),
                ElementsAre("19", "20", "21", "22", "25", "26", "27", "28", "29", "2024", "2", "3"));
    EXPECT_THAT(texts(WeekdaysFrom(20231218, 30), 16, 520), ElementsAre("25", "2024", "8", "15", "22"));
    EXPECT_THAT(texts(WeekdaysFrom(20231101, 100), 4, 420), ElementsAre("12m", "2024", "2m", "3m"));
    EXPECT_THAT(texts(WeekdaysFrom(20190101, 1500), 0.5, 760),
                ElementsAre("7m", "2020", "7m", "2021", "7m", "2022", "7m", "2023", "7m", "2024", "7m"));
    EXPECT_THAT(texts({}, 8, 400), ElementsAre());
}

TEST(BarFoldTest, KeepsExtremesAndWhereLinesBreak) {
    const Bars bars{{1, 10, 12, 9, 11, 5},
                    {2, 11, 19, 10, 12, 7},
                    {3, 12, 13, 2, 8, 6},
                    {4, 8, 9, 7, 9, 1},
                    {5, 9, 10, 8, 10, 2}};
    const auto halves = [](int bar) { return bar / 2; };
    const std::vector<FoldedBar> folded = FoldBars(bars, 1, 5, halves);
    ASSERT_EQ(folded.size(), 3u);
    const FoldedBar& middle = folded[1];
    EXPECT_EQ(middle.column, 1);
    EXPECT_EQ(middle.last, 3);
    EXPECT_THAT((std::vector{middle.open, middle.high, middle.low, middle.close, middle.volume}),
                ElementsAre(12, 13, 2, 9, 6));

    const double none = market::kMissing;
    const std::vector<FoldedValue> line = FoldSeries({none, 4, 1, 9, none, 5}, 0, 6, halves);
    ASSERT_EQ(line.size(), 3u);
    EXPECT_TRUE(line[0].begins && !line[1].begins && line[2].begins);
    EXPECT_THAT((std::vector{line[1].first, line[1].low, line[1].high, line[1].last}),
                ElementsAre(1, 1, 9, 9));
}

TEST(BarsHoldingTest, FindsTheBarOfEachDay) {
    const std::vector<int> days{20240102, 20240104, 20240105, 20240112, 20240301};
    const auto bars = [](std::vector<int> dates) {
        Bars all;
        for (int date : dates) all.push_back({date, 1, 1, 1, 1, 1});
        return all;
    };
    using market::Timeframe;
    EXPECT_THAT(BarsHolding(bars({20240102, 20240103, 20240105}), Timeframe::Day, days), ElementsAre(0, 2));
    EXPECT_THAT(BarsHolding(bars({20240105, 20240112, 20240119}), Timeframe::Week, days), ElementsAre(0, 1));
    EXPECT_THAT(BarsHolding(bars({20231229, 20240131, 20240329}), Timeframe::Month, days), ElementsAre(1, 2));
    EXPECT_THAT(BarsHolding({}, Timeframe::Day, days), ElementsAre());
}

}  // namespace
}  // namespace jogeon::terminal::chart
