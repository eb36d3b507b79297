// The part of CFBGrid that the pointer drives.
#include <QMouseEvent>
#include <cstdlib>

#include "screen/fbgrid/fb_grid_widget.h"

using namespace jogeon;

namespace {

constexpr int kWheelNotch = 120;  // in eighths of a degree, as Qt counts

GridPoint ToGridPoint(QPoint point) {
    return {point.x(), point.y()};
}

}  // namespace

bool CFBGrid::IsButton(CCellID cell) const {
    return Exists(cell) && (GetCell(cell.row, cell.col).state & CCell::kButton) != 0;
}

bool CFBGrid::IsOn(CCellID cell, QPoint point) const {
    const auto rect = Geometry().GetCellRect(cell.row, cell.col);
    return rect && rect->Contains(ToGridPoint(point));
}

void CFBGrid::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (event->button() == Qt::LeftButton) return PressLeft(point);
    if (event->button() != Qt::RightButton) return event->ignore();
    _tagGridHitTestInfo hit;
    if (Geometry().HitTest(ToGridPoint(point), hit) && !hit.header)
        Notify(FBGridNotify::kRightPressed, hit.row, hit.col);
}

void CFBGrid::PressLeft(QPoint point) {
    if (!TakeFocus()) return;
    EndMoveRow();
    CancelPointerGesture();  // of a press whose release went elsewhere
    _tagGridHitTestInfo hit;
    if (!Geometry().HitTest(ToGridPoint(point), hit)) return;
    if (hit.header) {
        Notify(FBGridNotify::kHeaderPressed, hit.row, hit.col);
        return;
    }
    const CCellID cell{hit.row, hit.col};
    if (IsButton(cell)) {
        gesture_ = ButtonPress{cell};
    } else if (cell.col == dragColumn_) {
        gesture_ = RowDrag{};
    }
    PressBody(cell);
}

// A push button takes the focus away, any other cell takes it.
bool CFBGrid::PressBody(CCellID cell) {
    if (IsButton(cell)) {
        KillCellFocus(true);
        InvalidateCell(cell.row, cell.col);
    } else if (!FocusCell(cell, true, true)) {
        return false;
    }
    return Notify(FBGridNotify::kCellPressed, cell.row, cell.col);
}

void CFBGrid::PressCell(int row, int col) {
    const CCellID cell{row, col};
    if (!Exists(cell)) return;
    if (IsNonHeaderCell(row, col)) {
        Notify(FBGridNotify::kHeaderPressed, row, col);
    } else if (PressBody(cell) && IsButton(cell)) {
        Notify(FBGridNotify::kButtonPressed, row, col);
    }
}

void CFBGrid::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0) return CancelPointerGesture();
    if (auto* press = std::get_if<ButtonPress>(&gesture_)) {
        const bool inside = IsOn(press->cell, event->position().toPoint());
        if (inside == press->inside) return;
        press->inside = inside;
        InvalidateCell(press->cell.row, press->cell.col);
    } else if (std::holds_alternative<RowDrag>(gesture_)) {
        viewport()->setCursor(Qt::UpArrowCursor);
    }
}

void CFBGrid::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint point = event->position().toPoint();
    if (std::holds_alternative<RowDrag>(gesture_)) return DropRow(point, *event);
    const auto* press = std::get_if<ButtonPress>(&gesture_);
    if (!press) return event->ignore();
    const CCellID cell = press->cell;
    CancelPointerGesture();
    if (IsButton(cell) && IsOn(cell, point)) Notify(FBGridNotify::kButtonPressed, cell.row, cell.col);
}

// A row that is dropped on itself or beside the cells goes nowhere, and the release is anyone's.
void CFBGrid::DropRow(QPoint point, QMouseEvent& event) {
    CancelPointerGesture();
    const CCellID dragged = GetFocusedCellID();
    _tagGridHitTestInfo hit;
    const bool onBody = Geometry().HitTest({point.x(), point.y()}, hit) && !hit.header;
    if (onBody && Exists(dragged) && hit.row != dragged.row) {
        Notify(FBGridNotify::kRowDropped, hit.row, dragged.row);
    } else {
        event.ignore();
    }
}

// Ends a press or a drag with nothing done.
void CFBGrid::CancelPointerGesture() {
    if (const auto* press = std::get_if<ButtonPress>(&gesture_)) {
        const CCellID cell = press->cell;
        gesture_ = {};
        InvalidateCell(cell.row, cell.col);
    } else if (std::holds_alternative<RowDrag>(gesture_)) {
        gesture_ = {};
        viewport()->unsetCursor();
    }
}

void CFBGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint point = event->position().toPoint();
    _tagGridHitTestInfo hit;
    if (!Geometry().HitTest(ToGridPoint(point), hit) || hit.header || IsButton({hit.row, hit.col})) return;
    if (FocusCell({hit.row, hit.col}, true, false))
        Notify(FBGridNotify::kDoubleClicked, point.x(), point.y());
}

// A notch acts as an arrow key; a smooth wheel's small turns add up to one.
void CFBGrid::wheelEvent(QWheelEvent* event) {
    const int delta = event->angleDelta().y();
    if ((delta < 0) != (wheelDelta_ < 0)) wheelDelta_ = 0;
    wheelDelta_ += delta;
    if (std::abs(wheelDelta_) < kWheelNotch) return;
    const int key = wheelDelta_ > 0 ? Qt::Key_Up : Qt::Key_Down;
    wheelDelta_ = 0;
    if (EndInPlace(true)) Key(key);
}
