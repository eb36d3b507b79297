// Family T, 010202: moving average convergence and divergence.

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/smoother.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

// The difference of two exponential averages, and the exponential average of that difference.
struct ConvergenceWalk {
    ConvergenceWalk(std::size_t instruments, std::array<int, 3> periods)
        : fast(Smoother::Exponential(instruments, periods[0])),
          slow(Smoother::Exponential(instruments, periods[1])),
          signal(Smoother::Exponential(instruments, periods[2])) {}

    void Step(const Bars& bars, int bar) {
        const std::span<const double> close = bars.Row(PriceField::Close, bar);
        fast.Add(close);
        slow.Add(close);
        difference = Combine(fast.Averages(), slow.Averages(), std::minus<>());
        signal.Add(difference);
    }

    std::array<Column, 2> Columns() const { return {difference, signal.Averages()}; }

    Smoother fast, slow, signal;
    Column difference;
};

Verdict EvaluateMacd(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const bool withSignal = parameters.Variant() < 2;
    const std::array<int, 3> periods = {parameters.Whole(40), parameters.Whole(41),
                                        withSignal ? parameters.Whole(42) : 1};
    parameters.Require(periods[0] < periods[1], "단기 기간이 장기 기간보다 짧아야 합니다");
    const LinesKey key{"macd", {periods[0], periods[1], periods[2]}, place.timeframe, place.bar};
    const auto lines =
        day.Get(key, [&] { return WalkTo(day, key, ConvergenceWalk(day.Instruments(), periods)); });
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
