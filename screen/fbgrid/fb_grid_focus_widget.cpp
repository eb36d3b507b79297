// The part of CFBGrid that moves the focus, of the cells and of the keyboard.
#include <QFocusEvent>

#include "screen/fbgrid/fb_grid_accessible_qt.h"
#include "screen/fbgrid/fb_grid_widget.h"

using namespace jogeon;

namespace {

constexpr FBFocusColours kWithFocus{fbcolour::kHighlight, 0xFFFFFF, 0xFFFFFF};
constexpr FBFocusColours kWithoutFocus{fbcolour::kInactiveBorder, 0, 0xFFFFFF};

}  // namespace

void CFBGrid::SetCellFocus(int row, int col, bool redraw, bool noToggle) {
    FocusCell({row, col}, redraw, noToggle);
}

bool CFBGrid::FocusCell(CCellID cell, bool redraw, bool noToggle) {
    if (!Exists(cell)) return true;
    const bool again = GetFocusedCellID() == cell;
    StoreFocus(cell, redraw);
    const CCell& focused = GetCell(cell.row, cell.col);
    if (focused.state & CCell::kEdit) {
        if (again) OpenEdit(cell);
    } else if (focused.state & (CCell::kList | CCell::kFreeList)) {
        if (focused.listIndex != -1) OpenList(cell);
    } else if ((focused.state & CCell::kCheck) && !noToggle) {
        return ToggleCheck(cell);
    }
    return true;
}

// The marked rows are the only ones that look different afterwards.
void CFBGrid::StoreFocus(CCellID cell, bool redraw) {
    const CCellID old = GetFocusedCellID();
    SetFocusedCellID(cell);
    if (redraw) {
        InvalidateRow(old.row);
        InvalidateRow(cell.row);
    }
    AnnounceFocus(*this, cell);
}

bool CFBGrid::ToggleCheck(CCellID cell) {
    std::uint32_t& check = GetCell(cell.row, cell.col).check;
    if (check == CCell::kDisabled) return true;
    if (check == CCell::kOn || check == CCell::kOff) check = check == CCell::kOn ? CCell::kOff : CCell::kOn;
    AnnounceCell(*this, cell);
    return Notify(FBGridNotify::kCheckToggled);
}

// The whole row is marked, so the whole row is repainted.
bool CFBGrid::KillCellFocus(bool redraw) {
    const CCellID focused = GetFocusedCellID();
    if (!Geometry().GetCellRect(focused.row, focused.col)) return false;
    SetFocusedCellID({});
    if (redraw) InvalidateRow(focused.row);
    return true;
}

// Scrolls first, so that a list opens where its cell will be.
void CFBGrid::SetFocusRow(int row, int col) {
    if (!IsValid(row, col)) return;
    ResetScrollBars();
    const std::int64_t above = Rows().Offset(row) - GetFixedRowHeight();
    const bool onFirstPage = above < viewport()->height() - GetFixedRowHeight();
    SetScrollPos32(Qt::Vertical, onFirstPage ? 0 : static_cast<int>(above), false);
    viewport()->update();
    FocusCell({row, col}, false, true);
}

bool CFBGrid::TakeFocus() {
    const QPointer<CFBGrid> self(this);
    setFocus(Qt::MouseFocusReason);
    return !self.isNull();
}

void CFBGrid::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    focusColours_ = kWithFocus;
    const CCellID focused = GetFocusedCellID();
    InvalidateCell(focused.row, focused.col);
    // A list stays open while the focus is in a window that doesn't close it; this one does.
    if (event->reason() != Qt::PopupFocusReason) EndInPlace(true);
}

void CFBGrid::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason) return;  // a menu of its own is no other window
    focusColours_ = kWithoutFocus;
    // A press that has led to a box or to another program will see no release.
    if (event->reason() == Qt::ActiveWindowFocusReason) CancelPointerGesture();
    if (std::holds_alternative<RowMove>(gesture_)) return EndMoveRow();
    const CCellID focused = GetFocusedCellID();
    InvalidateCell(focused.row, focused.col);
}
