#include "screen/fbgrid/fb_accessible_table_qt.h"

#include <algorithm>
#include <climits>

#include "screen/fbgrid/fb_grid_geometry.h"
#include "screen/fbgrid/fb_grid_widget.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr std::size_t kKeptCells = 4096;  // far more than any tool looks at in one go

}  // namespace

FBAccessibleTable::FBAccessibleTable(CFBGrid& grid)
    : QAccessibleWidget(&grid, QAccessible::Table), grid_(&grid) {}

FBAccessibleTable::~FBAccessibleTable() {
    ForgetCells();
}

bool FBAccessibleTable::isValid() const {
    return grid_ && QAccessibleWidget::isValid();
}

int FBAccessibleTable::ChildIndex(const CFBGrid& grid, CCellID cell) {
    if (!grid.IsValid(cell.row, cell.col)) return -1;
    const std::int64_t index = std::int64_t{cell.row} * grid.GetColCnt() + cell.col;
    return index <= INT_MAX ? static_cast<int>(index) : -1;
}

int FBAccessibleTable::childCount() const {
    return static_cast<int>(std::min<std::int64_t>(std::int64_t{rowCount()} * columnCount(), INT_MAX));
}

QAccessibleInterface* FBAccessibleTable::child(int index) const {
    const int columns = columnCount();
    if (columns == 0 || index < 0 || index >= childCount()) return nullptr;
    if (const auto known = ids_.find(index); known != ids_.end())
        return QAccessible::accessibleInterface(known->second);
    if (ids_.size() >= kKeptCells) ForgetOldestCell();
    auto* cell = new FBAccessibleCell(*grid_, {index / columns, index % columns});
    ids_[index] = QAccessible::registerAccessibleInterface(cell);  // owned by Qt from here
    order_.push_back(index);
    return cell;
}

void FBAccessibleTable::ForgetOldestCell() const {
    const auto oldest = ids_.extract(order_.front());
    order_.pop_front();
    QAccessible::deleteAccessibleInterface(oldest.mapped());
}

void FBAccessibleTable::ForgetCells() {
    while (!order_.empty()) ForgetOldestCell();
}

QAccessibleInterface* FBAccessibleTable::cellAt(int row, int column) const {
    return grid_ ? child(ChildIndex(*grid_, {row, column})) : nullptr;
}

QAccessibleInterface* FBAccessibleTable::childAt(int x, int y) const {
    if (!grid_) return nullptr;
    const QPoint point = grid_->viewport()->mapFromGlobal(QPoint(x, y));
    const CCellID cell = grid_->Geometry().GetCellFromPt({point.x(), point.y()}, true);
    return cellAt(cell.row, cell.col);
}

QAccessibleInterface* FBAccessibleTable::focusChild() const {
    if (!grid_ || !grid_->hasFocus()) return QAccessibleWidget::focusChild();
    const CCellID focused = grid_->GetFocusedCellID();
    return cellAt(focused.row, focused.col);
}

int FBAccessibleTable::indexOfChild(const QAccessibleInterface* child) const {
    // Only the cells of this table have a place in it.
    const auto* cell = dynamic_cast<const FBAccessibleCell*>(child);
    const bool own = cell && grid_ && cell->parent() == this;
    return own ? ChildIndex(*grid_, {cell->rowIndex(), cell->columnIndex()}) : -1;
}

void* FBAccessibleTable::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString FBAccessibleTable::columnDescription(int column) const {
    const bool hasHeader = grid_ && grid_->GetFixedRowCnt() > 0 && grid_->IsValid(0, column);
    return hasHeader ? ToQString(FBGridData::ShownText(grid_->GetCell(0, column))) : QString();
}

int FBAccessibleTable::columnCount() const {
    return grid_ ? grid_->GetColCnt() : 0;
}

int FBAccessibleTable::rowCount() const {
    return grid_ ? grid_->GetRowCnt() : 0;
}

QList<QAccessibleInterface*> FBAccessibleTable::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    for (const int row : selectedRows()) {
        for (int col = 0; col < columnCount(); ++col) cells.append(cellAt(row, col));
    }
    return cells;
}

int FBAccessibleTable::selectedCellCount() const {
    return selectedRowCount() * columnCount();
}

QList<int> FBAccessibleTable::selectedRows() const {
    const CCellID focused = grid_ ? grid_->GetFocusedCellID() : CCellID();
    return grid_ && grid_->IsValid(focused.row, focused.col) ? QList<int>{focused.row} : QList<int>();
}

bool FBAccessibleTable::isRowSelected(int row) const {
    return selectedRows().contains(row);
}

bool FBAccessibleTable::selectRow(int row) {
    if (!grid_ || !grid_->IsValid(row, 0)) return false;
    grid_->SetCellFocus(row, std::max(grid_->GetFocusedCellID().col, 0), true, true);
    return isRowSelected(row);
}

}  // namespace jogeon
