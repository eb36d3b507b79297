// Family B, group 0401: the price itself, bar by bar.

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

const Bars& BarsAt(const MarketDay& day, const Place& place) {
    return day.GetMarket().BarsOf(place.timeframe);
}

// 040101: beyond every one of the n bars before.
Verdict EvaluateNewExtreme(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int n = parameters.Whole(40);
    const bool high = parameters.Variant() == 0;
    const bool byClose = parameters.Choice(50, "12") == 1;
    const PriceField field = byClose ? PriceField::Close : high ? PriceField::High : PriceField::Low;
    const Bars& bars = BarsAt(day, place);
    const Column price = ColumnAt(bars, field, place.bar);
    const Column extreme =
        high ? Highest(bars, field, place.bar - 1, n) : Lowest(bars, field, place.bar - 1, n);
    return Judge(price, {&extreme},
                 [&](std::size_t i) { return high ? price[i] > extreme[i] : price[i] < extreme[i]; });
}

// 040102: the close of a day in won.
Verdict EvaluatePriceRange(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const int bar = day.BarAgo(Timeframe::Day, parameters.BarsAgo());
    const Bars& bars = day.GetMarket().BarsOf(Timeframe::Day);
    return JudgeRange(ColumnAt(bars, PriceField::Close, bar), RangeOf(parameters));
}

// The close against that of n bars before, in percent.
Column ChangeOver(MarketDay& day, const Place& place, int n) {
    const auto lines = day.Get({"change", {n}, place.timeframe, place.bar}, [&] {
        const Bars& bars = BarsAt(day, place);
        Column change = Combine(ColumnAt(bars, PriceField::Close, place.bar),
                                ColumnAt(bars, PriceField::Close, place.bar - n), PercentChange);
        return Lines{{OnlyUnbroken(bars, place.bar, n + 1, std::move(change)), {}}};
    });
    return lines->front().now;
}

// 040103
Verdict EvaluateChange(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    return JudgeRange(ChangeOver(day, PlaceOf(day, parameters), 1), RangeOf(parameters));
}

// 040104
Verdict EvaluatePeriodChange(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    return JudgeRange(ChangeOver(day, PlaceOf(day, parameters), parameters.Whole(40)), RangeOf(parameters));
}

// 040105: how far the open lies above (below) the bar before.
Verdict EvaluateGap(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const bool up = parameters.Variant() == 0;
    const bool fromClose = parameters.Choice(50, "12") == 0;
    const double least = parameters.Number(60);
    const PriceField base = fromClose ? PriceField::Close : up ? PriceField::High : PriceField::Low;
    const Column gap = Combine(ColumnAt(BarsAt(day, place), PriceField::Open, place.bar),
                               ColumnAt(BarsAt(day, place), base, place.bar - 1), PercentChange);
    return Judge(gap, {}, [&](std::size_t i) { return up ? gap[i] >= least : gap[i] <= -least; });
}

// 040106: n closes on end, each higher (lower) than the one before.
Verdict EvaluateStreak(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int n = parameters.Whole(40, 1, 999);
    const bool rising = parameters.Variant() == 0;
    const Bars& bars = BarsAt(day, place);
    Column streak(day.Instruments());
    for (int b = 0; b <= place.bar; ++b) {
        const auto close = bars.Row(PriceField::Close, b);
        const auto before = bars.Row(PriceField::Close, b ? b - 1 : b);
        for (std::size_t i = 0; i < streak.size(); ++i)
            streak[i] = (rising ? close[i] > before[i] : close[i] < before[i]) ? streak[i] + 1 : 0;
    }
    const Column length = OnlyUnbroken(bars, place.bar, n + 1, std::move(streak));
    return Judge(length, {}, [&](std::size_t i) { return length[i] >= n; });
}

// 040107: how far the close lies below the highest high, or above the lowest low, of n bars.
Verdict EvaluateDistance(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int n = parameters.Whole(40);
    const bool fromHigh = parameters.Variant() == 0;
    const Bars& bars = BarsAt(day, place);
    const Column close = ColumnAt(bars, PriceField::Close, place.bar);
    const Column extreme = fromHigh ? Highest(bars, PriceField::High, place.bar, n)
                                    : Lowest(bars, PriceField::Low, place.bar, n);
    const Column distance = Combine(close, extreme, [fromHigh](double price, double base) {
        return Ratio(100 * (fromHigh ? base - price : price - base), base);
    });
    return JudgeRange(distance, RangeOf(parameters));
}

constexpr int kExtremeRoles[] = {10, 20, 30, 40, 50};
constexpr int kPriceRoles[] = {30, 60, 61};
constexpr int kChangeRoles[] = {20, 30, 60, 61};
constexpr int kPeriodRoles[] = {20, 30, 40, 60, 61};
constexpr int kGapRoles[] = {10, 20, 30, 50, 60};
constexpr int kStreakRoles[] = {10, 20, 30, 40};
constexpr int kDistanceRoles[] = {10, 20, 30, 40, 60, 61};

constexpr Indicator kIndicators[] = {
    {"040101", 'B', 410, 2, 0, kExtremeRoles, "Price beyond the extreme of the n bars before. Common usage.",
     EvaluateNewExtreme},
    {"040102", 'B', 420, 1, 0, kPriceRoles, "Close of a day. The exchange's price.", EvaluatePriceRange},
    {"040103", 'B', 430, 1, 2, kChangeRoles,
     "100 * (close - close before) / close before. The exchange's 등락률.", EvaluateChange},
    {"040104", 'B', 440, 1, 2, kPeriodRoles, "100 * (close - close n before) / close n before. Common usage.",
     EvaluatePeriodChange},
    {"040105", 'B', 450, 2, 2, kGapRoles,
     "100 * (open - base) / base, the base a price of the bar before. Murphy, 1999 (price gaps).",
     EvaluateGap},
    {"040106", 'B', 460, 2, 0, kStreakRoles, "Consecutive closes above (below) the one before. Common usage.",
     EvaluateStreak},
    {"040107", 'B', 470, 2, 2, kDistanceRoles,
     "Close against the extreme of n bars, in percent. Common usage.", EvaluateDistance},
};

}  // namespace

std::span<const Indicator> PriceIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
