// Where a window may lie on its desktop.
#pragma once

#include <QRect>
#include <QSize>

namespace jogeon::terminal {

// The window with `extra` more width and height (less, if negative). It doesn't outgrow the desktop, and
// moves left or up where its new size would leave it. A window that leaves it already is only sized.
QRect Grown(const QRect& window, const QSize& extra, const QRect& desktop);

}  // namespace jogeon::terminal
