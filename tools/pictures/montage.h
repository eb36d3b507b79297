// Several pictures as one.
#pragma once

#include <QList>
#include <QPixmap>

namespace jogeon::pictures {

// The pictures from left to right in rows of `columns`, with a gap between them, on nothing.
QPixmap SideBySide(const QList<QPixmap>& pictures, int columns);

// The picture with a line around it, for a window that stands alone.
QPixmap Framed(const QPixmap& picture);

}  // namespace jogeon::pictures
