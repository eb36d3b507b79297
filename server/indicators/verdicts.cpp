#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

Verdict JudgeCrossing(const Line& line, const Line& signal, Direction direction) {
    return Judge(line.now, {&line.before, &signal.now, &signal.before}, [&](std::size_t i) {
        return direction == Direction::Up
                   ? CrossesUp(line.before[i], line.now[i], signal.before[i], signal.now[i])
                   : CrossesDown(line.before[i], line.now[i], signal.before[i], signal.now[i]);
    });
}

Verdict JudgeCrossing(const Line& line, double level, Direction direction) {
    return Judge(line.now, {&line.before}, [&](std::size_t i) {
        return direction == Direction::Up ? CrossesUp(line.before[i], line.now[i], level, level)
                                          : CrossesDown(line.before[i], line.now[i], level, level);
    });
}

Verdict JudgeLevel(const Line& line, const Parameters& parameters) {
    if (parameters.Variant() == kWithin) return JudgeRange(line.now, RangeOf(parameters));
    const double level = parameters.Number(60);
    switch (parameters.Variant()) {
        case kAtLeast:
            return Judge(line.now, {}, [&](std::size_t i) { return line.now[i] >= level; });
        case kAtMost:
            return Judge(line.now, {}, [&](std::size_t i) { return line.now[i] <= level; });
        case kCrossesUp:
            return JudgeCrossing(line, level, Direction::Up);
        default:
            return JudgeCrossing(line, level, Direction::Down);
    }
}

Verdict JudgeRange(const Column& value, const Range& range) {
    return Judge(value, {}, [&](std::size_t i) { return range.Holds(value[i]); });
}

}  // namespace jogeon::indicators
