#include "hands.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <screen/fbgrid/fb_grid_geometry.h>

namespace {

void Send(CFBGrid& grid, QEvent::Type type, CCellID cell) {
    const auto rect = grid.Geometry().GetCellRect(cell.row, cell.col);
    if (!rect) return;
    const QPoint point(rect->left + rect->width / 2, rect->top + rect->height / 2);
    const bool move = type == QEvent::MouseMove;
    const bool up = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, point, grid.viewport()->mapToGlobal(point), move ? Qt::NoButton : Qt::LeftButton,
                      up ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(grid.viewport(), &event);
}

}  // namespace

void DoubleClick(CFBGrid& grid, CCellID cell) {
    Send(grid, QEvent::MouseButtonPress, cell);
    Send(grid, QEvent::MouseButtonRelease, cell);
    Send(grid, QEvent::MouseButtonDblClick, cell);
    Send(grid, QEvent::MouseButtonRelease, cell);
}

void Drag(CFBGrid& grid, CCellID from, CCellID to) {
    Send(grid, QEvent::MouseButtonPress, from);
    Send(grid, QEvent::MouseMove, to);
    Send(grid, QEvent::MouseButtonRelease, to);
}

void PressKey(CFBGrid& grid, Qt::Key key) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&grid, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&grid, &up);
}
