// From lines to verdicts: comparisons that know what they can't know.
//
// Relies on unknown values being NaN. A comparison is known where every column that it needs is.
#pragma once

#include <cmath>
#include <initializer_list>
#include <utility>

#include "server/indicators/indicator.h"
#include "server/indicators/parameters.h"

namespace jogeon::indicators {

// Shows `value`; true where `test(index)` is. Known where `value` and all of `needed` are.
template <typename Test>
Verdict Judge(Column value, std::initializer_list<const Column*> needed, Test test) {
    Verdict verdict{BitSet(value.size()), BitSet(value.size()), std::move(value)};
    for (std::size_t i = 0; i < verdict.value.size(); ++i) {
        bool known = !std::isnan(verdict.value[i]);
        for (const Column* column : needed) known = known && !std::isnan((*column)[i]);
        if (!known) {
            verdict.value[i] = kMissing;
            continue;
        }
        verdict.known.Set(i);
        if (test(i)) verdict.truth.Set(i);
    }
    return verdict;
}

// Lower or equal at the bar before, higher now. Down: the other way round.
inline bool CrossesUp(double before, double now, double signalBefore, double signalNow) {
    return before <= signalBefore && now > signalNow;
}
inline bool CrossesDown(double before, double now, double signalBefore, double signalNow) {
    return CrossesUp(signalBefore, signalNow, before, now);
}

// `line` crosses `signal` upwards or downwards.
enum class Direction { Up, Down };
Verdict JudgeCrossing(const Line& line, const Line& signal, Direction direction);
Verdict JudgeCrossing(const Line& line, double level, Direction direction);

// The five variants that all level indicators share, of role 60 and, for the range, 61.
enum LevelVariant { kAtLeast, kAtMost, kWithin, kCrossesUp, kCrossesDown, kLevelVariants };
inline constexpr int kLevelRoles[] = {10, 20, 30, 40, 60, 61};
Verdict JudgeLevel(const Line& line, const Parameters& parameters);

Verdict JudgeRange(const Column& value, const Range& range);

}  // namespace jogeon::indicators
