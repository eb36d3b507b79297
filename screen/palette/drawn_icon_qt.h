// Icons that are drawn afresh at each paint: sharp on any display, in the colours of the current theme.
#pragma once

#include <QIcon>
#include <functional>

class QPainter;

namespace jogeon {

// Draws on a square of 16 units, as many as it has pixels at the usual size: a line of width 1 between units,
// at n + 0.5, fills whole pixels there. Without a brush and with smooth edges at first.
using IconDrawing = std::function<void(QPainter& painter, QIcon::Mode mode, QIcon::State state)>;

// A disabled icon is a faint one.
QIcon DrawnIcon(IconDrawing draw);

}  // namespace jogeon
