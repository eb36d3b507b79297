// What the trader has chosen to see in a chart, and the lines that this makes of a stock's bars.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "screen/palette/colors.h"
#include "terminal/chart/value_scale.h"

namespace jogeon::terminal::chart {

inline constexpr int kAverages = 5;
inline constexpr int kMostPeriod = 999;
inline constexpr std::array kLineColors = {Color::ChartLine1, Color::ChartLine2, Color::ChartLine3,
                                           Color::ChartLine4, Color::ChartLine5};  // of the averages

enum class Lower { None, Rsi, Macd, Stochastic };
inline constexpr int kLowers = 4;

struct Choice {
    std::array<int, kAverages> periods{5, 20, 60, 120, 0};  // 1 to kMostPeriod, 0 for no line
    AverageKind averageKind = AverageKind::Simple;
    bool bands = true;
    Lower lower = Lower::Macd;
    market::Timeframe timeframe = market::Timeframe::Day;

    friend bool operator==(const Choice&, const Choice&) = default;
};

struct Curve {
    std::string name;  // ASCII: "MA20"
    Color color;
    Series values;
};

struct Study {
    std::vector<Curve> averages;
    std::vector<Curve> bands;  // upper, middle, lower; empty if not chosen
    Lower kind = Lower::None;
    std::vector<Curve> lower;
    Series histogram;            // MACD less its signal; empty for the others
    std::vector<double> levels;  // that the lower pane marks
    ValueRange lowerRange;       // what the lower pane shows at least
    int lowerDecimals = 0;
};

Study StudyOf(const Bars& bars, const Choice& choice);

// The bars that hold these dates (ascending, yyyymmdd), each once; dates without a bar are passed over.
std::vector<int> BarsHolding(const Bars& bars, market::Timeframe timeframe, const std::vector<int>& dates);

// The bar that holds this date, or else the last one before it; -1 if there is neither.
int LastUpTo(const Bars& bars, market::Timeframe timeframe, int date);

}  // namespace jogeon::terminal::chart
