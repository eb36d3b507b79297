#include "terminal/chart/value_scale.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace jogeon::terminal::chart {
namespace {

constexpr double kAroundOneValue = 0.01;  // of the value

std::string Digits(const char* form, int decimals, double value) {
    char text[400];
    std::snprintf(text, sizeof text, form, decimals, value);
    return text;
}

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

std::string NumberText(double value, int decimals) {
    if (std::isnan(value)) return {};
    std::string text = Digits("%.*f", decimals, value);
    if (text.find_first_not_of("-0.") == std::string::npos && text.front() == '-') text.erase(0, 1);
    const std::size_t start = text.front() == '-' ? 1 : 0;
    const std::size_t point = std::min(text.find('.'), text.size());
    for (std::size_t at = point; at > start + 3; at -= 3) text.insert(at - 3, 1, ',');
    return text;
}

std::string PercentText(double percent) {
    if (std::isnan(percent)) return {};
    const std::string text = Digits("%+.*f%%", 2, percent);
    return text.find_first_of("123456789") == std::string::npos ? text.substr(1) : text;
}

}  // namespace jogeon::terminal::chart
