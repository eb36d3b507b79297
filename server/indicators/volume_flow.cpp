// Family T, group 0104: the direction of volume.

#include <deque>

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

// Volume of rising against falling bars, half of the unchanged ones on either side.
Column VolumeRatio(const Bars& bars, int bar, int n) {
    if (bar < n) return ColumnAt(bars, PriceField::Close, -1);
    Column rising(static_cast<std::size_t>(bars.Instruments())), falling = rising;
    for (int b = bar - n + 1; b <= bar; ++b) {
        const auto volume = bars.Row(PriceField::Volume, b);
        const auto close = bars.Row(PriceField::Close, b), before = bars.Row(PriceField::Close, b - 1);
        for (std::size_t i = 0; i < rising.size(); ++i) {
            const double change = close[i] - before[i];
            const double share = change > 0 ? 1 : change < 0 ? 0 : 0.5;
            const double known = change == change ? volume[i] : kMissing;
            rising[i] += known * share;
            falling[i] += known * (1 - share);
        }
    }
    return Combine(rising, falling, [](double up, double down) { return Ratio(100 * up, down); });
}

// 010401
Verdict EvaluateVolumeRatio(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int n = parameters.Whole(40);
    const auto lines = day.Get({"volume ratio", {n}, place.timeframe, place.bar}, [&] {
        const Bars& bars = day.GetMarket().BarsOf(place.timeframe);
        return Lines{LineOf(place.bar, [&](int bar) { return VolumeRatio(bars, bar, n); })};
    });
    return JudgeLevel(lines->front(), parameters);
}

// Volume added up since the run's first bar, which itself adds nothing.
void AddBalance(const Bars& bars, int bar, Column& balance) {
    const auto volume = bars.Row(PriceField::Volume, bar);
    const auto close = bars.Row(PriceField::Close, bar);
    const auto before = bars.Row(PriceField::Close, bar ? bar - 1 : bar);
    for (std::size_t i = 0; i < balance.size(); ++i) {
        const double change = bar ? close[i] - before[i] : kMissing;
        const double signedVolume = change > 0 ? volume[i] : change < 0 ? -volume[i] : 0;
        const double start = close[i] == close[i] ? 0 : kMissing;
        balance[i] = change == change ? balance[i] + signedVolume : start;
    }
}

// On-balance volume and its mean over n bars.
struct BalanceWalk {
    BalanceWalk(std::size_t instruments, int n)
        : period(static_cast<std::size_t>(n)), balance(instruments, kMissing) {}

    void Step(const Bars& bars, int bar) {
        AddBalance(bars, bar, balance);
        balances.push_back(balance);
        if (balances.size() > period) balances.pop_front();
    }

    std::array<Column, 2> Columns() const {
        Column mean(balance.size(), balances.size() == period ? 0 : kMissing);
        for (const Column& one : balances) mean = Combine(mean, one, std::plus<>());
        for (double& value : mean) value /= static_cast<double>(period);
        return {balance, mean};
    }

    std::size_t period;
    Column balance;
    std::deque<Column> balances;  // the last n
};

// 010402
Verdict EvaluateOnBalance(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const int n = parameters.Whole(40);
    const LinesKey key{"on-balance volume", {n}, place.timeframe, place.bar};
    const auto lines = day.Get(key, [&] { return WalkTo(day, key, BalanceWalk(day.Instruments(), n)); });
    return JudgeCrossing((*lines)[0], (*lines)[1],
                         parameters.Variant() == 0 ? Direction::Up : Direction::Down);
}

constexpr int kCrossingRoles[] = {10, 20, 30, 40};

constexpr Indicator kIndicators[] = {
    {"010401", 'T', 310, kLevelVariants, 2, kLevelRoles,
     "100 * (rising + unchanged / 2) / (falling + unchanged / 2) volume of n bars. Japanese volume ratio.",
     EvaluateVolumeRatio},
    {"010402", 'T', 320, 2, 0, kCrossingRoles,
     "On-balance volume against its mean. J. E. Granville, New Key to Stock Market Profits, 1963.",
     EvaluateOnBalance},
};

}  // namespace

std::span<const Indicator> VolumeFlowIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
