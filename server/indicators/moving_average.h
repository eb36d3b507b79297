// The moving average of the close, simple or exponential, as a line that conditions share.
#pragma once

#include "server/indicators/parameters.h"
#include "server/indicators/windows.h"

namespace jogeon::indicators {

// The codes of role 50 wherever an indicator lets the trader choose: '0' 단순, '1' 지수.
enum class AverageKind { Simple, Exponential };
AverageKind AverageKindOf(const Parameters& parameters);

// Simple: the mean of n closes, known from n bars on. Exponential: see Smoother, known from n bars on.
std::shared_ptr<const Line> MovingAverage(MarketDay& day, const Place& place, int n, AverageKind kind);

// Close now and before.
Line CloseLine(const MarketDay& day, const Place& place);

// One of several lines, kept alive together with them.
inline std::shared_ptr<const Line> PickLine(std::shared_ptr<const Lines> lines, std::size_t index) {
    const Line* line = &(*lines)[index];
    return {std::move(lines), line};
}

}  // namespace jogeon::indicators
