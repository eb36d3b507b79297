// The grid's colour numbers as Qt takes them.
#pragma once

#include <QColor>
#include <QPalette>

#include "screen/fbgrid/fb_cell.h"

namespace jogeon {

// Whether a colour is the desktop's, and so changes with its theme.
constexpr bool IsDesktopColour(FBColour colour) {
    return (colour & 0x80000000) != 0;
}

// A colour of the desktop is a role of `palette`; one that has no role is taken as the window's.
QColor ToQColor(FBColour colour, const QPalette& palette);

// What a text in `text` is drawn with on `back`. A colour of the desktop that can't be read there, as on a
// light row under a dark theme, gives way to the screen's own; a colour that was chosen by number stands.
QColor TextColourOn(const QColor& back, FBColour text, const QPalette& palette);

}  // namespace jogeon
