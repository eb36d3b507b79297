// Family T, 010202: moving average convergence and divergence.

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/smoother.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

// The difference of two exponential averages, and the exponential average of that difference.
Lines ConvergenceAndSignal(const Bars& bars, std::size_t instruments, int bar, std::array<int, 3> periods) {
    Smoother fast = Smoother::Exponential(instruments, periods[0]);
    Smoother slow = Smoother::Exponential(instruments, periods[1]);
    Smoother signal = Smoother::Exponential(instruments, periods[2]);
    Column difference;
    const auto step = [&](int b) {
        const std::span<const double> close = bars.Row(PriceField::Close, b);
        fast.Add(close);
        slow.Add(close);
        difference = Combine(fast.Averages(), slow.Averages(), std::minus<>());
        signal.Add(difference);
    };
    return WalkTo<2>(bar, instruments, step, [&] { return std::array{difference, signal.Averages()}; });
}

Verdict EvaluateMacd(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const bool withSignal = parameters.Variant() < 2;
    const std::array<int, 3> periods = {parameters.Whole(40), parameters.Whole(41),
                                        withSignal ? parameters.Whole(42) : 1};
    parameters.Require(periods[0] < periods[1], "단기 기간이 장기 기간보다 짧아야 합니다");
    const auto lines =
        day.Get({"macd", {periods[0], periods[1], periods[2]}, place.timeframe, place.bar}, [&] {
            return ConvergenceAndSignal(day.GetMarket().BarsOf(place.timeframe), day.Instruments(), place.bar,
                                        periods);
        });
    const Direction direction = parameters.Variant() % 2 == 0 ? Direction::Up : Direction::Down;
    return withSignal ? JudgeCrossing((*lines)[0], (*lines)[1], direction)
                      : JudgeCrossing((*lines)[0], 0, direction);
}

constexpr int kRoles[] = {10, 20, 30, 40, 41, 42};

constexpr Indicator kIndicators[] = {
    {"010202", 'T', 120, 4, 2, kRoles,
     "MACD with its signal line. G. Appel, The Moving Average Convergence-Divergence Method, 1979.",
     EvaluateMacd},
};

}  // namespace

std::span<const Indicator> MacdIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
