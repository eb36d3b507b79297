#include <QWindow>

#include "screen/fbgrid/fb_accessible_table_qt.h"
#include "screen/fbgrid/fb_grid_geometry.h"
#include "screen/fbgrid/fb_grid_widget.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {

bool FBAccessibleCell::isValid() const {
    return grid_ && grid_->IsValid(cell_.row, cell_.col);
}

// Asked only of a valid one.
const CCell& FBAccessibleCell::Cell() const {
    return grid_->GetCell(cell_.row, cell_.col);
}

bool FBAccessibleCell::IsHeader() const {
    return isValid() && grid_->IsNonHeaderCell(cell_.row, cell_.col);
}

bool FBAccessibleCell::IsCheckBox() const {
    return isValid() && !IsHeader() && (Cell().state & CCell::kCheck) != 0;
}

bool FBAccessibleCell::IsFocused() const {
    return isValid() && grid_->GetFocusedCellID() == cell_;
}

QWindow* FBAccessibleCell::window() const {
    return grid_ ? grid_->window()->windowHandle() : nullptr;
}

QAccessibleInterface* FBAccessibleCell::table() const {
    return grid_ ? QAccessible::queryAccessibleInterface(grid_.data()) : nullptr;
}

// A check box without a text is described by its column.
QString FBAccessibleCell::text(QAccessible::Text kind) const {
    if (!isValid()) return {};
    if (kind == QAccessible::Name) return ToQString(FBGridData::ShownText(Cell()));
    if (kind == QAccessible::Description && !IsHeader())
        return table()->tableInterface()->columnDescription(cell_.col);
    return {};
}

QRect FBAccessibleCell::rect() const {
    if (!isValid()) return {};
    const auto rect = grid_->Geometry().GetCellRect(cell_.row, cell_.col);
    if (!rect) return {};
    return QRect(grid_->viewport()->mapToGlobal(QPoint(rect->left, rect->top)),
                 QSize(rect->width, rect->height));
}

QAccessible::Role FBAccessibleCell::role() const {
    if (IsHeader()) return QAccessible::ColumnHeader;
    return isValid() && cell_.col < grid_->GetFixedColCnt() ? QAccessible::RowHeader : QAccessible::Cell;
}

QAccessible::State FBAccessibleCell::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.disabled = !grid_->isEnabled();
    state.focusable = !IsHeader();
    state.selectable = !IsHeader();
    state.focused = IsFocused() && grid_->hasFocus();
    state.selected = isSelected();
    state.invisible = grid_->GetColWidth(cell_.col) == 0 || grid_->GetRowHeight(cell_.row) == 0;
    state.offscreen = !state.invisible && rect().isNull();
    if (IsCheckBox()) {
        state.checkable = true;
        state.checked = Cell().check == CCell::kOn;
        state.disabled = state.disabled || Cell().check == CCell::kDisabled;
    }
    const bool editable = !IsHeader() && (Cell().state & (CCell::kEdit | CCell::kFreeList)) != 0;
    state.editable = editable;
    state.readOnly = !editable;
    return state;
}

void* FBAccessibleCell::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

bool FBAccessibleCell::isSelected() const {
    return isValid() && !IsHeader() && grid_->GetFocusedCellID().row == cell_.row;
}

QList<QAccessibleInterface*> FBAccessibleCell::columnHeaderCells() const {
    QList<QAccessibleInterface*> cells;
    for (int row = 0; isValid() && !IsHeader() && row < grid_->GetFixedRowCnt(); ++row)
        cells.append(table()->tableInterface()->cellAt(row, cell_.col));
    return cells;
}

QList<QAccessibleInterface*> FBAccessibleCell::rowHeaderCells() const {
    QList<QAccessibleInterface*> cells;
    const int headers = isValid() ? std::min(grid_->GetFixedColCnt(), cell_.col) : 0;
    for (int col = 0; col < headers; ++col) cells.append(table()->tableInterface()->cellAt(cell_.row, col));
    return cells;
}

QStringList FBAccessibleCell::actionNames() const {
    if (!isValid()) return {};
    QStringList names{pressAction()};
    if (IsCheckBox() && Cell().check != CCell::kDisabled) names.prepend(toggleAction());
    if (!IsHeader()) names.append(setFocusAction());
    return names;
}

void FBAccessibleCell::doAction(const QString& name) {
    if (!actionNames().contains(name)) return;
    const QPointer<CFBGrid> grid = grid_;  // what follows may end this
    const CCellID cell = cell_;
    if (name == pressAction()) return grid->PressCell(cell.row, cell.col);
    grid->setFocus();
    if (grid) grid->SetCellFocus(cell.row, cell.col, true, name != toggleAction());
}

}  // namespace jogeon
