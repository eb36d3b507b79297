#include "screen/panes/progress_state.h"

#include <algorithm>
#include <limits>

#include "screen/text/bytes.h"

namespace jogeon {
namespace {

int Truncated(double value) {
    constexpr double kLeast = std::numeric_limits<int>::min();
    constexpr double kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, kLeast, kMost));
}

// `count` units of the fraction. The product comes before the quotient: 29 of 100 is 29 percent, where 0.29
// times 100 falls just short of it.
double Scaled(const ProgressState& state, double count) {
    if (state.minimum >= state.maximum) return 0;
    const double range = static_cast<double>(state.maximum) - state.minimum;
    return (static_cast<double>(state.position) - state.minimum) * count / range;
}

}  // namespace

double ProgressState::Fraction() const {
    return Scaled(*this, 1);
}

int ProgressState::BarWidth(int width) const {
    return Truncated(Scaled(*this, width));
}

std::string ProgressState::ShownText() const {
    if (!showText) return {};
    if (!text.empty()) return text;
    return Fraction() > 0 ? Decimal(Truncated(Scaled(*this, 100))) + '%' : std::string();
}

}  // namespace jogeon
