// The desktop's colours in our two themes, as Qt's widgets take them.
#pragma once

#include <QPalette>

#include "screen/palette/colors.h"

namespace jogeon::terminal {

// The palette of every window in a theme, of the colours of screen/palette. Leaves CurrentTheme as it is.
QPalette PaletteOf(Theme theme);

// Whether a palette has light text on a dark ground.
bool IsDark(const QPalette& palette);

}  // namespace jogeon::terminal
