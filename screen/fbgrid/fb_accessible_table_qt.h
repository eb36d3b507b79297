// The accessible interfaces of CFBGrid and of its cells.
//
// Both outlive what they show and then say that they are not valid. Children are the cells, row by row.
#pragma once

#include <QAccessibleWidget>
#include <QPointer>
#include <deque>
#include <unordered_map>

#include "screen/fbgrid/fb_cell.h"

class CFBGrid;

namespace jogeon {

class FBAccessibleTable : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit FBAccessibleTable(CFBGrid& grid);
    ~FBAccessibleTable() override;

    // The number of a cell among the children, -1 for one that isn't there or has a number beyond an int.
    static int ChildIndex(const CFBGrid& grid, CCellID cell);

    bool isValid() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* focusChild() const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // The focused row stands for the selected one.
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int) const override { return {}; }
    int columnCount() const override;
    int rowCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    int selectedCellCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { ForgetCells(); }

private:
    void ForgetCells();
    void ForgetOldestCell() const;

    QPointer<CFBGrid> grid_;
    mutable std::unordered_map<int, QAccessible::Id> ids_;  // by child index
    mutable std::deque<int> order_;                         // the keys of ids_, oldest first
};

class FBAccessibleCell : public QAccessibleInterface,
                         public QAccessibleTableCellInterface,
                         public QAccessibleActionInterface {
public:
    FBAccessibleCell(CFBGrid& grid, CCellID cell) : grid_(&grid), cell_(cell) {}

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    int columnIndex() const override { return cell_.col; }
    int rowIndex() const override { return cell_.row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override;

    // Pressing is a click; toggling a check box is what Enter does.
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const CCell& Cell() const;
    bool IsHeader() const;
    bool IsCheckBox() const;
    bool IsFocused() const;

    QPointer<CFBGrid> grid_;
    const CCellID cell_;
};

}  // namespace jogeon
