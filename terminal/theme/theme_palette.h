// The colours of all windows in our two themes, as Qt's widgets take them.
#pragma once

#include <QPalette>

#include "screen/palette/colors.h"

namespace jogeon::terminal {

// The palette of every window in a theme, of the colours of screen/palette.
QPalette PaletteOf(Theme theme);

}  // namespace jogeon::terminal
