// The part of CFBGrid that the keyboard drives: the focus, and a row that is moved.
#include <QKeyEvent>
#include <algorithm>

#include "screen/fbgrid/fb_grid_widget.h"
#include "screen/palette/colors.h"

using namespace jogeon;

namespace {

constexpr int kHiddenWidth = 1;  // a column of this width or less is stepped over

}  // namespace

// The Delete key is told before any shortcut may take it. It then goes its usual way.
bool CFBGrid::event(QEvent* event) {
    const bool keyDown = event->type() == QEvent::ShortcutOverride;
    const bool isDelete = keyDown && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete;
    const bool ofInPlaceControl = viewport()->isAncestorOf(window()->focusWidget());
    if (isDelete && !ofInPlaceControl && !Notify(FBGridNotify::kDeleteKey)) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

// No key goes on to the parent: Enter and Escape would end a dialog.
void CFBGrid::keyPressEvent(QKeyEvent* event) {
    event->accept();
    Key(event->key());
}

void CFBGrid::Key(int key) {
    if (std::holds_alternative<RowMove>(gesture_)) return MoveKey(key);
    if (key == Qt::Key_Return || key == Qt::Key_Enter) return EnterKey();
    const CCellID at = GetFocusedCellID();
    if (!Exists(at)) return;
    switch (key) {
        case Qt::Key_PageUp:
            if (at.row > GetFixedRowCnt()) PageKey(at, ScrollStep::PageUp);
            break;
        case Qt::Key_PageDown:
            if (at.row < GetRowCnt() - 1) PageKey(at, ScrollStep::PageDown);
            break;
        case Qt::Key_Up:
            if (at.row > GetFixedRowCnt()) VerticalKey(at, -1);
            break;
        case Qt::Key_Down:
            if (at.row < GetRowCnt() - 1) VerticalKey(at, 1);
            break;
        case Qt::Key_Left:
            HorizontalKey(at, -1);
            break;
        case Qt::Key_Right:
            HorizontalKey(at, 1);
            break;
        default:
            break;
    }
}

void CFBGrid::EnterKey() {
    const CCellID at = GetFocusedCellID();
    if (Exists(at) && !FocusCell(at, true, false)) return;
    Notify(FBGridNotify::kEnterKey);
}

void CFBGrid::PageKey(CCellID at, ScrollStep step) {
    Scroll(Qt::Vertical, step);
    const CCellRange shown = Geometry().GetVisibleRange();
    if (shown.maxRow < shown.minRow) return;
    FocusCell({step == ScrollStep::PageUp ? shown.minRow : shown.maxRow, at.col}, true, true);
}

void CFBGrid::VerticalKey(CCellID at, int direction) {
    const CCellRange shown = Geometry().GetVisibleRange();
    if (direction < 0 && at.row - 1 < shown.minRow) Scroll(Qt::Vertical, ScrollStep::LineUp);
    if (direction > 0 && at.row >= shown.maxRow) Scroll(Qt::Vertical, ScrollStep::LineDown);
    FocusCell({at.row + direction, at.col}, true, true);
}

// The nearest column on that side that can be seen; -1 if there is none.
int CFBGrid::NextShownColumn(int col, int direction) const {
    do col += direction;
    while (col >= 0 && col < GetColCnt() && GetColWidth(col) <= kHiddenWidth);
    return col < GetColCnt() ? col : -1;
}

// Each column on the way, hidden ones too, may scroll a line, as if it had been gone to.
void CFBGrid::HorizontalKey(CCellID at, int direction) {
    const int target = NextShownColumn(at.col, direction);
    if (target < 0) return;
    const ScrollStep step = direction < 0 ? ScrollStep::LineUp : ScrollStep::LineDown;
    for (int col = at.col; col != target; col += direction) {
        const CCellRange shown = Geometry().GetVisibleRange();
        const bool beyond = direction < 0 ? col - 1 < shown.minCol : col >= shown.maxCol;
        if (beyond) Scroll(Qt::Horizontal, step);
    }
    FocusCell({at.row, target}, true, true);
}

// --- a row that is moved

void CFBGrid::BeginMoveRow(int minRow, int maxRow) {
    EndMoveRow();
    CancelPointerGesture();
    const CCellID cell = GetFocusedCellID();
    if (!Exists(cell)) return;
    gesture_ = RowMove{std::max(minRow, 0), std::min(maxRow, GetRowCnt() - 1), cell};
    if (!KillCellFocus(true)) SetFocusedCellID({});  // it is hidden by scrolling
    for (int col = 0; col < GetColCnt(); ++col)
        GetCell(cell.row, col).backColour = ColorOf(Color::FBMovingRow);
    InvalidateRow(cell.row);
}

void CFBGrid::MoveKey(int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) return EndMoveRow();
    auto& move = std::get<RowMove>(gesture_);
    const int from = move.cell.row;
    const bool up = key == Qt::Key_Up && from > move.minRow;
    const bool down = key == Qt::Key_Down && from < move.maxRow;
    if (!up && !down) return;
    const int to = up ? from - 1 : from + 1;
    for (int col = 0; col < GetColCnt(); ++col) SwapCellInfo(from, col, to, col);
    move.cell.row = to;
    InvalidateRow(from);
    InvalidateRow(to);
}

void CFBGrid::EndMoveRow() {
    const auto* move = std::get_if<RowMove>(&gesture_);
    if (!move) return;
    const CCellID cell = move->cell;
    gesture_ = {};
    for (int col = 0; col < GetColCnt(); ++col) GetCell(cell.row, col).backColour = fbcolour::kWindow;
    InvalidateRow(cell.row);
    if (window()->focusWidget() == this && Exists(cell)) StoreFocus(cell, true);
}

// Ends a move after rows have gone: the mark is still on its row, or has moved up with it.
void CFBGrid::DropMove() {
    const auto* move = std::get_if<RowMove>(&gesture_);
    if (!move) return;
    const int last = std::min(move->cell.row, GetRowCnt() - 1);
    gesture_ = {};
    for (int row = 0; row <= last; ++row) {
        for (int col = 0; col < GetColCnt(); ++col) {
            FBColour& back = GetCell(row, col).backColour;
            if (back == ColorOf(Color::FBMovingRow)) back = fbcolour::kWindow;
        }
    }
    viewport()->update();
}
