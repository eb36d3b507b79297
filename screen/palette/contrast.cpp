#include "screen/palette/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace jogeon {
namespace {

// The light of each value of a channel: 0 to 1.
std::array<double, 256> MakeLights() {
    std::array<double, 256> lights{};
    for (std::size_t i = 0; i < lights.size(); ++i) {
        const double share = static_cast<double>(i) / 255;
        lights[i] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    }
    return lights;
}

// Grids ask for every cell that they paint.
double Linear(ColorNumber channel) {
    static const std::array<double, 256> lights = MakeLights();
    return lights[channel & 0xff];
}

double Luminance(ColorNumber color) {
    return 0.2126 * Linear(color) + 0.7152 * Linear(color >> 8) + 0.0722 * Linear(color >> 16);
}

}  // namespace

double Contrast(ColorNumber a, ColorNumber b) {
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

ColorNumber ReadableOn(ColorNumber back, Color ink) {
    const ColorNumber usual = ColorOf(ink);
    if (Contrast(usual, back) >= kFaintContrast) return usual;
    const ColorNumber other = ColorOf(ink, CurrentTheme() == Theme::Dark ? Theme::Light : Theme::Dark);
    return Contrast(other, back) > Contrast(usual, back) ? other : usual;
}

}  // namespace jogeon
