// Family B, groups 0402 and 0403: what was traded, and since when.

#include <chrono>

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/trading_value.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

// Volume in percent of the mean of the n bars before.
Column VolumeOfMean(const Bars& bars, int bar, int n) {
    return Combine(ColumnAt(bars, PriceField::Volume, bar), Mean(bars, PriceField::Volume, bar - 1, n),
                   [](double volume, double mean) { return Ratio(100 * volume, mean); });
}

// 040201
Verdict EvaluateVolumeOfMean(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const Column percent =
        VolumeOfMean(day.GetMarket().BarsOf(place.timeframe), place.bar, parameters.Whole(40));
    const double least = parameters.Number(60);
    return Judge(percent, {}, [&](std::size_t i) { return percent[i] >= least; });
}

// 040202
Verdict EvaluateVolumeOfPrevious(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    return JudgeRange(VolumeOfMean(day.GetMarket().BarsOf(place.timeframe), place.bar, 1),
                      RangeOf(parameters));
}

// 040203
Verdict EvaluateTradingValue(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int n = parameters.Whole(40);
    const double least = parameters.Number(60);
    const auto lines = day.Get({"trading value", {n}, place.timeframe, place.bar}, [&] {
        const Bars& bars = day.GetMarket().BarsOf(place.timeframe);
        return Lines{LineOf(place.bar, [&](int bar) { return MeanTradingValue(bars, bar, n); })};
    });
    const Column& value = lines->front().now;
    return Judge(value, {}, [&](std::size_t i) { return value[i] >= least; });
}

std::chrono::sys_days DayOf(int date) {
    return std::chrono::year(date / 10000) / (date / 100 % 100) / (date % 100);
}

// 040301: calendar days from the listing to the market's last day.
Verdict EvaluateListedDays(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const market::Market& market = day.GetMarket();
    Column days(day.Instruments(), kMissing);
    for (std::size_t i = 0; i < days.size(); ++i) {
        const int listed = market.Instruments()[i].listingDate;
        if (listed && market.LastDate())
            days[i] = static_cast<double>((DayOf(market.LastDate()) - DayOf(listed)).count());
    }
    return JudgeRange(days, RangeOf(parameters));
}

constexpr int kMeanRoles[] = {20, 30, 40, 60};
constexpr int kPreviousRoles[] = {20, 30, 60, 61};
constexpr int kListedRoles[] = {60, 61};

constexpr Indicator kIndicators[] = {
    {"040201", 'B', 510, 1, 2, kMeanRoles, "100 * volume / mean volume of the n bars before. Common usage.",
     EvaluateVolumeOfMean},
    {"040202", 'B', 520, 1, 2, kPreviousRoles, "100 * volume / volume of the bar before. Common usage.",
     EvaluateVolumeOfPrevious},
    {"040203", 'B', 530, 1, 2, kMeanRoles,
     "Mean over n bars of close * volume, in 억원. An estimate: bars hold no traded amount.",
     EvaluateTradingValue},
    {"040301", 'B', 540, 1, 0, kListedRoles, "Calendar days since the listing date. Common usage.",
     EvaluateListedDays},
};

}  // namespace

std::span<const Indicator> TradeIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
