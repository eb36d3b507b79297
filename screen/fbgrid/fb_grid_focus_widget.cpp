#include "screen/fbgrid/fb_grid_focus_widget.h"

#include "screen/fbgrid/fb_grid_accessible_qt.h"
#include "screen/fbgrid/fb_grid_parts_widget.h"

namespace jogeon {
namespace {

constexpr FBFocusColours kWithFocus{fbcolour::kHighlight, 0xFFFFFF, 0xFFFFFF};
constexpr FBFocusColours kWithoutFocus{fbcolour::kInactiveBorder, 0, 0xFFFFFF};

}  // namespace

bool FBGridFocus::Give(CCellID cell, bool redraw, bool noToggle) {
    if (!parts_.Exists(cell)) return true;
    const bool again = grid_.GetFocusedCellID() == cell;
    Store(cell, redraw);
    const CCell& focused = grid_.GetCell(cell.row, cell.col);
    if (focused.state & CCell::kEdit) {
        if (again) parts_.inPlace.OpenEdit(cell);
    } else if (focused.state & (CCell::kList | CCell::kFreeList)) {
        if (focused.listIndex != -1) parts_.inPlace.OpenList(cell);
    } else if ((focused.state & CCell::kCheck) && !noToggle) {
        return Toggle(cell);
    }
    return true;
}

// The marked rows are the only ones that look different afterwards.
void FBGridFocus::Store(CCellID cell, bool redraw) {
    const CCellID old = grid_.GetFocusedCellID();
    grid_.SetFocusedCellID(cell);
    if (redraw) {
        grid_.InvalidateRow(old.row);
        grid_.InvalidateRow(cell.row);
    }
    AnnounceFocus(grid_, cell);
}

bool FBGridFocus::Toggle(CCellID cell) {
    std::uint32_t& check = grid_.GetCell(cell.row, cell.col).check;
    if (check == CCell::kDisabled) return true;
    if (check == CCell::kOn || check == CCell::kOff) check = check == CCell::kOn ? CCell::kOff : CCell::kOn;
    AnnounceCell(grid_, cell);
    return parts_.Notify(FBGridNotify::kCheckToggled);
}

// The whole row is marked, so the whole row is repainted.
bool FBGridFocus::Kill(bool redraw) {
    const CCellID focused = grid_.GetFocusedCellID();
    if (!grid_.Geometry().GetCellRect(focused.row, focused.col)) return false;
    grid_.SetFocusedCellID({});
    if (redraw) grid_.InvalidateRow(focused.row);
    return true;
}

// Scrolls first, so that a list opens where its cell will be.
void FBGridFocus::GiveRow(CCellID cell) {
    if (!parts_.Exists(cell)) return;
    parts_.sizes.FitBars();
    const std::int64_t above = grid_.Rows().Offset(cell.row) - grid_.GetFixedRowHeight();
    const bool onFirstPage = above < grid_.viewport()->height() - grid_.GetFixedRowHeight();
    parts_.scroll.SetPosition(Qt::Vertical, onFirstPage ? 0 : static_cast<int>(above), false);
    grid_.viewport()->update();
    Give(cell, false, true);
}

void FBGridFocus::KeyboardCame(const QFocusEvent& event) {
    colours_ = kWithFocus;
    const CCellID focused = grid_.GetFocusedCellID();
    grid_.InvalidateCell(focused.row, focused.col);
    // A list stays open while the focus is in a window that doesn't close it; this one does.
    if (event.reason() != Qt::PopupFocusReason) parts_.inPlace.End(true);
}

void FBGridFocus::KeyboardWent(const QFocusEvent& event) {
    if (event.reason() == Qt::PopupFocusReason) return;  // a menu of its own is no other window
    colours_ = kWithoutFocus;
    // A press that has led to a box or to another program will see no release.
    if (event.reason() == Qt::ActiveWindowFocusReason) parts_.mouse.Cancel();
    if (std::holds_alternative<RowMove>(parts_.gesture)) return parts_.keys.EndMove();
    const CCellID focused = grid_.GetFocusedCellID();
    grid_.InvalidateCell(focused.row, focused.col);
}

}  // namespace jogeon
