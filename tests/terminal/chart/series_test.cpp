// Chart and search never disagree: the ends of the chart's lines are what the indicators compute.
#include "terminal/chart/series.h"

#include <cmath>

#include <gtest/gtest.h>

#include "server/indicators/indicator.h"
#include "server/service/local_charts.h"
#include "tests/terminal/chart/chart_market.h"

namespace jogeon::terminal::chart {
namespace {

using indicators::Line;
using indicators::MarketDay;
using market::Timeframe;

class SeriesTest : public testing::Test {
protected:
    SeriesTest() : market_(test::ChartMarket()), day_(market_), charts_(market_) {}

    // The lines that evaluating this condition leaves with the day, under the key of its computation.
    std::shared_ptr<const indicators::Lines> LinesOf(std::string_view series, std::array<int, 4> numbers,
                                                     DecodedBlock condition) {
        condition.family = 'T';
        condition.roles[20] = std::string(1, "DWM"[static_cast<int>(timeframe_)]);
        condition.roles[30] = "0";
        indicators::FindIndicator(condition.key)->evaluate(day_, condition);
        return day_.Get({series, numbers, timeframe_, day_.BarAgo(timeframe_, 0)}, []() -> indicators::Lines {
            throw std::logic_error("not computed by the condition");
        });
    }

    // The last two values of the stock.
    void Same(const char* what, const Line& line, const Series& series) {
        const std::size_t last = series.size() - 1;
        EXPECT_EQ(Text(line.now[stock_]), Text(series[last])) << what;
        EXPECT_EQ(Text(line.before[stock_]), Text(series[last - 1])) << what << ", before";
        known_ += !std::isnan(series[last]);
    }
    static std::string Text(double value) {
        char text[64];
        std::snprintf(text, sizeof text, "%a", value);
        return std::isnan(value) ? "unknown" : text;
    }

    void CompareAll(const Bars& bars) {
        const indicators::Place place{timeframe_, day_.BarAgo(timeframe_, 0)};
        for (int n : {1, 5, 20, 120})
            for (const AverageKind kind : {AverageKind::Simple, AverageKind::Exponential})
                Same("average", *indicators::MovingAverage(day_, place, n, kind),
                     MovingAverage(bars, n, kind));

        const auto rsi =
            LinesOf("rsi", {14}, {.key = "010201", .number = 110, .roles = {{40, "14"}, {60, "1"}}});
        Same("rsi", rsi->front(), RelativeStrength(bars, 14));

        const auto macd =
            LinesOf("macd", {12, 26, 9},
                    {.key = "010202", .number = 120, .roles = {{40, "12"}, {41, "26"}, {42, "9"}}});
        const LineAndSignal ours = Macd(bars, 12, 26, 9);
        Same("macd", (*macd)[0], ours.line);
        Same("signal", (*macd)[1], ours.signal);

        const auto slow =
            LinesOf("stochastic", {12, 5, 5},
                    {.key = "010203", .number = 130, .roles = {{40, "12"}, {41, "5"}, {42, "5"}}});
        const LineAndSignal stochastic = SlowStochastic(bars, 12, 5, 5);
        Same("%K", (*slow)[0], stochastic.line);
        Same("%D", (*slow)[1], stochastic.signal);

        const auto deviation =
            LinesOf("deviation", {20}, {.key = "010301", .number = 210, .roles = {{40, "20"}, {60, "2"}}});
        const auto mean = indicators::MovingAverage(day_, place, 20, AverageKind::Simple);
        const Bands bands = BollingerBands(bars, 20, 2);
        const auto at = [](double factor) {
            return [factor](double middle, double spread) { return middle + factor * spread; };
        };
        for (const auto& [factor, edge] :
             {std::pair{2, &bands.upper}, {0, &bands.middle}, {-2, &bands.lower}})
            Same("band",
                 {indicators::Combine(mean->now, deviation->front().now, at(factor)),
                  indicators::Combine(mean->before, deviation->front().before, at(factor))},
                 *edge);
    }

    const std::shared_ptr<const market::Market> market_;
    MarketDay day_;
    service::LocalCharts charts_;
    Timeframe timeframe_ = Timeframe::Day;
    std::size_t stock_ = 0;
    int known_ = 0;
};

TEST_F(SeriesTest, EndWithTheValuesThatConditionsSee) {
    for (const char* code : {test::kSwinging, test::kPausing})
        for (const Timeframe timeframe : {Timeframe::Day, Timeframe::Week, Timeframe::Month}) {
            SCOPED_TRACE(std::string(code) + " " + std::to_string(static_cast<int>(timeframe)));
            timeframe_ = timeframe;
            stock_ = static_cast<std::size_t>(market_->Find(code));
            CompareAll(charts_.Bars(code, timeframe)->bars);
        }
    EXPECT_GT(known_, 50) << "or little was compared";
}

}  // namespace
}  // namespace jogeon::terminal::chart
