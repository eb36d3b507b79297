#include "terminal/chart/value_scale.h"

#include <algorithm>
#include <cmath>

namespace jogeon::terminal::chart {
namespace {

constexpr double kAroundOneValue = 0.01;  // of the value

}  // namespace

void ValueRange::Add(double value) {
    if (std::isnan(value)) return;
    const bool first = Empty();
    low = first ? value : std::min(low, value);
    high = first ? value : std::max(high, value);
}

void ValueRange::Add(const Series& series, int first, int end) {
    for (int bar = first; bar < end; ++bar) Add(series[static_cast<std::size_t>(bar)]);
}

ValueRange ValueRange::Padded(double above, double below) const {
    return {low - below * (high - low), high + above * (high - low)};
}

ValueScale::ValueScale(ValueRange range, double top, double bottom) : range_(range), bottom_(bottom) {
    if (range_.Empty()) range_ = {0, 1};
    if (range_.low == range_.high) {
        const double around = std::max(std::abs(range_.low) * kAroundOneValue, 1.0);
        range_ = {range_.low - around, range_.high + around};
    }
    pixels_ = std::max(1.0, bottom - top) / (range_.high - range_.low);
}

std::vector<double> ValueScale::Ticks(double apart, double least) const {
    const double step = std::max(NiceStep(apart / pixels_), least);
    std::vector<double> ticks;
    const double first = std::ceil(range_.low / step);
    for (double k = first; k * step <= range_.high; ++k) ticks.push_back(k * step);
    return ticks;
}

double NiceStep(double size) {
    const double power = std::pow(10.0, std::floor(std::log10(size)));
    for (const double times : {1.0, 2.0, 5.0})
        if (times * power >= size * (1 - 1e-9)) return times * power;
    return 10 * power;
}

}  // namespace jogeon::terminal::chart
