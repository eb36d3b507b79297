#include "screen/fbgrid/fb_grid_keys_widget.h"

#include <QKeyEvent>
#include <algorithm>

#include "screen/fbgrid/fb_grid_parts_widget.h"
#include "screen/palette/theme_qt.h"

namespace jogeon {
namespace {

constexpr int kHiddenWidth = 1;  // a column of this width or less is stepped over

}  // namespace

bool FBGridKeys::TellDelete(const QEvent& event) {
    if (event.type() != QEvent::ShortcutOverride) return true;
    if (static_cast<const QKeyEvent&>(event).key() != Qt::Key_Delete) return true;
    const bool ofInPlaceControl = grid_.viewport()->isAncestorOf(grid_.window()->focusWidget());
    return ofInPlaceControl || parts_.Notify(FBGridNotify::kDeleteKey);
}

void FBGridKeys::Key(int key) {
    if (std::holds_alternative<RowMove>(parts_.gesture)) return MoveKey(key);
    if (key == Qt::Key_Return || key == Qt::Key_Enter) return EnterKey();
    const CCellID at = grid_.GetFocusedCellID();
    if (parts_.Exists(at)) FocusKey(key, at);
}

void FBGridKeys::FocusKey(int key, CCellID at) {
    switch (key) {
        case Qt::Key_PageUp:
            if (at.row > grid_.GetFixedRowCnt()) PageKey(at, ScrollStep::PageUp);
            break;
        case Qt::Key_PageDown:
            if (at.row < grid_.GetRowCnt() - 1) PageKey(at, ScrollStep::PageDown);
            break;
        case Qt::Key_Up:
            if (at.row > grid_.GetFixedRowCnt()) VerticalKey(at, -1);
            break;
        case Qt::Key_Down:
            if (at.row < grid_.GetRowCnt() - 1) VerticalKey(at, 1);
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

void FBGridKeys::EnterKey() {
    const CCellID at = grid_.GetFocusedCellID();
    if (parts_.Exists(at) && !parts_.focus.Give(at, true, false)) return;
    parts_.Notify(FBGridNotify::kEnterKey);
}

void FBGridKeys::PageKey(CCellID at, ScrollStep step) {
    parts_.scroll.Step(Qt::Vertical, step);
    const CCellRange shown = grid_.Geometry().GetVisibleRange();
    if (shown.maxRow < shown.minRow) return;
    parts_.focus.Give({step == ScrollStep::PageUp ? shown.minRow : shown.maxRow, at.col}, true, true);
}

void FBGridKeys::VerticalKey(CCellID at, int direction) {
    const CCellRange shown = grid_.Geometry().GetVisibleRange();
    if (direction < 0 && at.row - 1 < shown.minRow) parts_.scroll.Step(Qt::Vertical, ScrollStep::LineUp);
    if (direction > 0 && at.row >= shown.maxRow) parts_.scroll.Step(Qt::Vertical, ScrollStep::LineDown);
    parts_.focus.Give({at.row + direction, at.col}, true, true);
}

// The nearest column on that side that can be seen; -1 if there is none.
int FBGridKeys::NextShownColumn(int col, int direction) const {
    do col += direction;
    while (col >= 0 && col < grid_.GetColCnt() && grid_.GetColWidth(col) <= kHiddenWidth);
    return col < grid_.GetColCnt() ? col : -1;
}

// Each column on the way, hidden ones too, may scroll a line, as if it had been gone to.
void FBGridKeys::HorizontalKey(CCellID at, int direction) {
    const int target = NextShownColumn(at.col, direction);
    if (target < 0) return;
    const ScrollStep step = direction < 0 ? ScrollStep::LineUp : ScrollStep::LineDown;
    for (int col = at.col; col != target; col += direction) {
        const CCellRange shown = grid_.Geometry().GetVisibleRange();
        const bool beyond = direction < 0 ? col - 1 < shown.minCol : col >= shown.maxCol;
        if (beyond) parts_.scroll.Step(Qt::Horizontal, step);
    }
    parts_.focus.Give({at.row, target}, true, true);
}

// --- a row that is moved

void FBGridKeys::BeginMove(int minRow, int maxRow) {
    EndMove();
    parts_.mouse.Cancel();
    const CCellID cell = grid_.GetFocusedCellID();
    if (!parts_.Exists(cell)) return;
    const FBColour mark = ColorOf(Color::FBMovingRow, ThemeOf(grid_.palette()));
    parts_.gesture = RowMove{std::max(minRow, 0), std::min(maxRow, grid_.GetRowCnt() - 1), cell, mark};
    if (!parts_.focus.Kill(true)) grid_.SetFocusedCellID({});  // it is hidden by scrolling
    for (int col = 0; col < grid_.GetColCnt(); ++col) grid_.GetCell(cell.row, col).backColour = mark;
    grid_.InvalidateRow(cell.row);
}

void FBGridKeys::MoveKey(int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) return EndMove();
    auto& move = std::get<RowMove>(parts_.gesture);
    const int from = move.cell.row;
    const bool up = key == Qt::Key_Up && from > move.minRow;
    const bool down = key == Qt::Key_Down && from < move.maxRow;
    if (!up && !down) return;
    const int to = up ? from - 1 : from + 1;
    for (int col = 0; col < grid_.GetColCnt(); ++col) grid_.SwapCellInfo(from, col, to, col);
    move.cell.row = to;
    grid_.InvalidateRow(from);
    grid_.InvalidateRow(to);
}

void FBGridKeys::EndMove() {
    const auto* move = std::get_if<RowMove>(&parts_.gesture);
    if (!move) return;
    const CCellID cell = move->cell;
    parts_.gesture = {};
    for (int col = 0; col < grid_.GetColCnt(); ++col)
        grid_.GetCell(cell.row, col).backColour = fbcolour::kWindow;
    grid_.InvalidateRow(cell.row);
    if (grid_.window()->focusWidget() == &grid_ && parts_.Exists(cell)) parts_.focus.Store(cell, true);
}

// The mark is still on its row, or has moved up with it.
void FBGridKeys::DropMove() {
    const auto* move = std::get_if<RowMove>(&parts_.gesture);
    if (!move) return;
    const int last = std::min(move->cell.row, grid_.GetRowCnt() - 1);
    const FBColour mark = move->mark;
    parts_.gesture = {};
    for (int row = 0; row <= last; ++row) {
        for (int col = 0; col < grid_.GetColCnt(); ++col) {
            FBColour& back = grid_.GetCell(row, col).backColour;
            if (back == mark) back = fbcolour::kWindow;
        }
    }
    grid_.viewport()->update();
}

}  // namespace jogeon
