// The pointers that tell that a double click toggles the operator under them.
#pragma once

#include <QCursor>
#include <QPixmap>

namespace jogeon {

// An arrow with "and" or "or" beside it. `ratio` is the device pixels of a pixel of the window.
QPixmap OperatorPointer(bool isAnd, qreal ratio);
QCursor OperatorCursor(bool isAnd, qreal ratio);

}  // namespace jogeon
