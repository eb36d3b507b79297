// Where a window may lie on its desktop.
#pragma once

#include <QRect>
#include <QSize>

namespace jogeon::terminal {

// The window with `extra` more width and height (less, if negative). It doesn't outgrow the desktop, and
// moves left or up where its new size would leave it. A window that leaves it already is only sized.
QRect Grown(const QRect& window, const QSize& extra, const QRect& desktop);

// A new window of this size, no larger than the desktop, as near to the corner as it lies on it as a whole.
QRect PlacedWhole(const QPoint& corner, const QSize& size, const QRect& desktop);

}  // namespace jogeon::terminal
