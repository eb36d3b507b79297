#include "terminal/chart/study.h"

#include <algorithm>
#include <cstddef>

#include "server/market/calendar.h"

namespace jogeon::terminal::chart {
namespace {

constexpr int kBandDays = 20;
constexpr double kBandDeviations = 2;
constexpr int kRsiDays = 14;
constexpr int kMacd[] = {12, 26, 9};
constexpr int kStochastic[] = {12, 5, 5};

void AddAverages(const Bars& bars, const Choice& choice, Study& study) {
    const char* const name = choice.averageKind == AverageKind::Simple ? "MA" : "EMA";
    for (std::size_t i = 0; i < choice.periods.size(); ++i) {
        const int n = choice.periods[i];
        if (n > 0)
            study.averages.push_back(
                {name + std::to_string(n), kLineColors[i], MovingAverage(bars, n, choice.averageKind)});
    }
}

void AddBands(const Bars& bars, Study& study) {
    Bands bands = BollingerBands(bars, kBandDays, kBandDeviations);
    study.bands.push_back({"BB+", Color::ChartBand, std::move(bands.upper)});
    study.bands.push_back({"BB", Color::ChartBand, std::move(bands.middle)});
    study.bands.push_back({"BB-", Color::ChartBand, std::move(bands.lower)});
}

void AddRsi(const Bars& bars, Study& study) {
    study.lower.push_back({"RSI(14)", Color::ChartLine1, RelativeStrength(bars, kRsiDays)});
    study.levels = {30, 70};
    study.lowerRange = {0, 100};
    study.lowerDecimals = 2;
}

void AddMacd(const Bars& bars, Study& study) {
    LineAndSignal macd = Macd(bars, kMacd[0], kMacd[1], kMacd[2]);
    study.histogram = macd.line;
    for (std::size_t bar = 0; bar < bars.size(); ++bar) study.histogram[bar] -= macd.signal[bar];
    study.lower.push_back({"MACD(12,26)", Color::ChartLine1, std::move(macd.line)});
    study.lower.push_back({"Signal(9)", Color::ChartLine2, std::move(macd.signal)});
    study.levels = {0};
    study.lowerRange = {0, 0};
    study.lowerDecimals = 1;
}

void AddStochastic(const Bars& bars, Study& study) {
    LineAndSignal slow = SlowStochastic(bars, kStochastic[0], kStochastic[1], kStochastic[2]);
    study.lower.push_back({"Slow%K(12,5)", Color::ChartLine1, std::move(slow.line)});
    study.lower.push_back({"%D(5)", Color::ChartLine2, std::move(slow.signal)});
    study.levels = {20, 80};
    study.lowerRange = {0, 100};
    study.lowerDecimals = 2;
}

}  // namespace

Study StudyOf(const Bars& bars, const Choice& choice) {
    Study study;
    study.kind = choice.lower;
    AddAverages(bars, choice, study);
    if (choice.bands) AddBands(bars, study);
    if (choice.lower == Lower::Rsi) AddRsi(bars, study);
    if (choice.lower == Lower::Macd) AddMacd(bars, study);
    if (choice.lower == Lower::Stochastic) AddStochastic(bars, study);
    return study;
}

std::vector<int> BarsHolding(const Bars& bars, market::Timeframe timeframe, const std::vector<int>& dates) {
    std::vector<int> holding;
    auto bar = bars.begin();
    for (const int date : dates) {
        // A bar's date is the last day of its period.
        bar = std::lower_bound(bar, bars.end(), date,
                               [](const service::ChartBar& one, int wanted) { return one.date < wanted; });
        if (bar == bars.end()) break;
        const int index = static_cast<int>(bar - bars.begin());
        const bool holds = market::PeriodOf(timeframe, bar->date) == market::PeriodOf(timeframe, date);
        if (holds && (holding.empty() || holding.back() != index)) holding.push_back(index);
    }
    return holding;
}

int LastUpTo(const Bars& bars, market::Timeframe timeframe, int date) {
    const int period = market::PeriodOf(timeframe, date);
    const auto end = std::partition_point(bars.begin(), bars.end(), [&](const service::ChartBar& bar) {
        return market::PeriodOf(timeframe, bar.date) <= period;
    });
    return static_cast<int>(end - bars.begin()) - 1;
}

}  // namespace jogeon::terminal::chart
