// How well a text reads on a background: the contrast of two colours, and the ink for a background that the
// user or another screen has chosen.
#pragma once

#include "screen/palette/colors.h"

namespace jogeon {

// What a text needs beside its background, and what one of less weight or a mark needs.
inline constexpr double kTextContrast = 4.5;
inline constexpr double kFaintContrast = 3;

// From 1, the same brightness, to 21, black on white; WCAG 2 calls it the contrast ratio.
double Contrast(ColorNumber a, ColorNumber b);

// `ink` as the theme has it, or as the other theme has it where only that can be read on `back`.
ColorNumber ReadableOn(ColorNumber back, Color ink);

}  // namespace jogeon
