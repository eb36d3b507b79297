// The edges that Qt's style draws around boxes, fields and buttons, in the screen's colour.
#pragma once

#include <QPalette>

#include "screen/palette/colors_qt.h"

class QWidget;

namespace jogeon {

// For a control that paints no window background: the style draws its edges in a darker shade of the window
// colour, which on a dark window is none at all. Here they come out as the screen's own edges.
inline QPalette EdgePalette() {
    constexpr int kShadeOfEdges = 140;  // percent, as the style has it
    QPalette palette;
    palette.setColor(QPalette::Window, ToQColor(Color::ControlEdge).lighter(kShadeOfEdges));
    return palette;
}

// Gives that palette to the controls in `window` that Qt's style draws. They don't inherit it, since a style
// sheet stands above them.
void ShowEdges(QWidget& window);

}  // namespace jogeon
