#include "screen/fbgrid/fb_grid_mouse_widget.h"

#include <cstdlib>

#include "screen/fbgrid/fb_grid_parts_widget.h"

namespace jogeon {
namespace {

constexpr int kWheelNotch = 120;  // in eighths of a degree, as Qt counts

GridPoint ToGridPoint(QPoint point) {
    return {point.x(), point.y()};
}

}  // namespace

bool FBGridMouse::IsButton(CCellID cell) const {
    return parts_.Exists(cell) && (grid_.GetCell(cell.row, cell.col).state & CCell::kButton) != 0;
}

bool FBGridMouse::IsOn(CCellID cell, QPoint point) const {
    const auto rect = grid_.Geometry().GetCellRect(cell.row, cell.col);
    return rect && rect->Contains(ToGridPoint(point));
}

void FBGridMouse::Press(QMouseEvent& event) {
    const QPoint point = event.position().toPoint();
    if (event.button() == Qt::LeftButton) return PressLeft(point);
    if (event.button() != Qt::RightButton) return event.ignore();
    _tagGridHitTestInfo hit;
    if (grid_.Geometry().HitTest(ToGridPoint(point), hit) && !hit.header)
        parts_.Notify(FBGridNotify::kRightPressed, hit.row, hit.col);
}

void FBGridMouse::PressLeft(QPoint point) {
    if (!parts_.TakeFocus()) return;
    parts_.keys.EndMove();
    Cancel();  // of a press whose release went elsewhere
    _tagGridHitTestInfo hit;
    if (!grid_.Geometry().HitTest(ToGridPoint(point), hit)) return;
    if (hit.header) {
        parts_.Notify(FBGridNotify::kHeaderPressed, hit.row, hit.col);
        return;
    }
    const CCellID cell{hit.row, hit.col};
    if (IsButton(cell)) {
        parts_.gesture = ButtonPress{cell};
    } else if (cell.col == dragColumn_) {
        parts_.gesture = RowDrag{};
    }
    PressBody(cell);
}

// A push button takes the focus away, any other cell takes it.
bool FBGridMouse::PressBody(CCellID cell) {
    if (IsButton(cell)) {
        parts_.focus.Kill(true);
        grid_.InvalidateCell(cell.row, cell.col);
    } else if (!parts_.focus.Give(cell, true, true)) {
        return false;
    }
    return parts_.Notify(FBGridNotify::kCellPressed, cell.row, cell.col);
}

void FBGridMouse::PressCell(CCellID cell) {
    if (!parts_.Exists(cell)) return;
    if (grid_.IsNonHeaderCell(cell.row, cell.col)) {
        parts_.Notify(FBGridNotify::kHeaderPressed, cell.row, cell.col);
    } else if (PressBody(cell) && IsButton(cell)) {
        parts_.Notify(FBGridNotify::kButtonPressed, cell.row, cell.col);
    }
}

void FBGridMouse::Move(const QMouseEvent& event) {
    if ((event.buttons() & Qt::LeftButton) == 0) return Cancel();
    if (auto* press = std::get_if<ButtonPress>(&parts_.gesture)) {
        const bool inside = IsOn(press->cell, event.position().toPoint());
        if (inside == press->inside) return;
        press->inside = inside;
        grid_.InvalidateCell(press->cell.row, press->cell.col);
    } else if (std::holds_alternative<RowDrag>(parts_.gesture)) {
        grid_.viewport()->setCursor(Qt::UpArrowCursor);
    }
}

void FBGridMouse::Release(QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return;
    const QPoint point = event.position().toPoint();
    if (std::holds_alternative<RowDrag>(parts_.gesture)) return DropRow(point, event);
    const auto* press = std::get_if<ButtonPress>(&parts_.gesture);
    if (!press) return event.ignore();
    const CCellID cell = press->cell;
    Cancel();
    if (IsButton(cell) && IsOn(cell, point)) parts_.Notify(FBGridNotify::kButtonPressed, cell.row, cell.col);
}

// A row that is dropped on itself or beside the cells goes nowhere, and the release is anyone's.
void FBGridMouse::DropRow(QPoint point, QMouseEvent& event) {
    Cancel();
    const CCellID dragged = grid_.GetFocusedCellID();
    _tagGridHitTestInfo hit;
    const bool onBody = grid_.Geometry().HitTest({point.x(), point.y()}, hit) && !hit.header;
    if (onBody && parts_.Exists(dragged) && hit.row != dragged.row) {
        parts_.Notify(FBGridNotify::kRowDropped, hit.row, dragged.row);
    } else {
        event.ignore();
    }
}

void FBGridMouse::Cancel() {
    if (const auto* press = std::get_if<ButtonPress>(&parts_.gesture)) {
        const CCellID cell = press->cell;
        parts_.gesture = {};
        grid_.InvalidateCell(cell.row, cell.col);
    } else if (std::holds_alternative<RowDrag>(parts_.gesture)) {
        parts_.gesture = {};
        grid_.viewport()->unsetCursor();
    }
}

void FBGridMouse::DoubleClick(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return;
    const QPoint point = event.position().toPoint();
    _tagGridHitTestInfo hit;
    if (!grid_.Geometry().HitTest(ToGridPoint(point), hit) || hit.header || IsButton({hit.row, hit.col}))
        return;
    if (parts_.focus.Give({hit.row, hit.col}, true, false))
        parts_.Notify(FBGridNotify::kDoubleClicked, point.x(), point.y());
}

// A notch acts as an arrow key; a smooth wheel's small turns add up to one.
void FBGridMouse::Wheel(const QWheelEvent& event) {
    const int delta = event.angleDelta().y();
    if ((delta < 0) != (wheelDelta_ < 0)) wheelDelta_ = 0;
    wheelDelta_ += delta;
    if (std::abs(wheelDelta_) < kWheelNotch) return;
    const int key = wheelDelta_ > 0 ? Qt::Key_Up : Qt::Key_Down;
    wheelDelta_ = 0;
    if (parts_.inPlace.End(true)) parts_.PressKey(key);
}

}  // namespace jogeon
