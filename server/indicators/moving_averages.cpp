// Family T, group 0101: the close and its moving averages.

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

// 010101: the close against one average.
Verdict EvaluatePriceAndAverage(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const Line close = CloseLine(day, place);
    const auto average = MovingAverage(day, place, parameters.Whole(40), AverageKindOf(parameters));
    switch (parameters.Variant()) {
        case 0:
            return JudgeCrossing(close, *average, Direction::Up);
        case 1:
            return JudgeCrossing(close, *average, Direction::Down);
        case 2:
            return Judge(close.now, {&average->now}, [&](auto i) { return close.now[i] > average->now[i]; });
        default:
            return Judge(close.now, {&average->now}, [&](auto i) { return close.now[i] < average->now[i]; });
    }
}

// 010102: a short average crosses a long one.
Verdict EvaluateAverageCrossing(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const AverageKind kind = AverageKindOf(parameters);
    const auto first = MovingAverage(day, place, parameters.Whole(40), kind);
    const auto second = MovingAverage(day, place, parameters.Whole(41), kind);
    return JudgeCrossing(*first, *second, parameters.Variant() == 0 ? Direction::Up : Direction::Down);
}

// 010103: three averages in order.
Verdict EvaluateAverageOrder(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const AverageKind kind = AverageKindOf(parameters);
    const int periods[] = {parameters.Whole(40), parameters.Whole(41), parameters.Whole(42)};
    parameters.Require(periods[0] < periods[1] && periods[1] < periods[2],
                       "단기, 중기, 장기의 순서로 기간이 길어야 합니다");
    const auto fast = MovingAverage(day, place, periods[0], kind);
    const auto middle = MovingAverage(day, place, periods[1], kind);
    const auto slow = MovingAverage(day, place, periods[2], kind);
    const bool rising = parameters.Variant() == 0;
    return Judge(fast->now, {&middle->now, &slow->now}, [&](std::size_t i) {
        const double a = fast->now[i], b = middle->now[i], c = slow->now[i];
        return rising ? a > b && b > c : a < b && b < c;
    });
}

// 010104: an average that has risen or fallen for some bars on end.
Verdict EvaluateAverageTrend(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const AverageKind kind = AverageKindOf(parameters);
    const int period = parameters.Whole(40);
    const int steps = parameters.Whole(41, 1, 99);
    const bool rising = parameters.Variant() == 0;
    const auto average = MovingAverage(day, place, period, kind);
    Column lasts(day.Instruments(), 1);  // 1 as long as every step went the right way, missing when unknown
    for (int step = 0; step < steps; ++step) {
        const auto line = MovingAverage(day, {place.timeframe, place.bar - step}, period, kind);
        for (std::size_t i = 0; i < lasts.size(); ++i) {
            const double change = line->now[i] - line->before[i];
            const double holds = rising ? change > 0 : change < 0;
            lasts[i] = change == change ? lasts[i] * holds : kMissing;
        }
    }
    return Judge(average->now, {&lasts}, [&](std::size_t i) { return lasts[i] == 1; });
}

// 010105: the close in percent of its average.
Verdict EvaluateDisparity(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const Line close = CloseLine(day, place);
    const auto average = MovingAverage(day, place, parameters.Whole(40), AverageKind::Simple);
    const auto disparity = [](double price, double mean) { return Ratio(100 * price, mean); };
    return JudgeLevel(
        {Combine(close.now, average->now, disparity), Combine(close.before, average->before, disparity)},
        parameters);
}

constexpr int kPriceRoles[] = {10, 20, 30, 40, 50};
constexpr int kCrossingRoles[] = {10, 20, 30, 40, 41, 50};
constexpr int kOrderRoles[] = {10, 20, 30, 40, 41, 42, 50};

constexpr Indicator kIndicators[] = {
    {"010101", 'T', 10, 4, 0, kPriceRoles,
     "Close against its moving average. J. J. Murphy, Technical Analysis of the Financial Markets, 1999.",
     EvaluatePriceAndAverage},
    {"010102", 'T', 20, 2, 0, kCrossingRoles,
     "A moving average crosses another (golden cross, dead cross). Murphy, 1999.", EvaluateAverageCrossing},
    {"010103", 'T', 30, 2, 0, kOrderRoles, "Three moving averages one above the other. Murphy, 1999.",
     EvaluateAverageOrder},
    {"010104", 'T', 40, 2, 0, kCrossingRoles,
     "A moving average higher (lower) than at the bar before, n times on end.", EvaluateAverageTrend},
    {"010105", 'T', 50, kLevelVariants, 2, kLevelRoles,
     "100 * close / simple average. S. Nison, Beyond Candlesticks, 1994 (disparity index).",
     EvaluateDisparity},
};

}  // namespace

std::span<const Indicator> MovingAverageIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
