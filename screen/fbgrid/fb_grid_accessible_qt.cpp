#include "screen/fbgrid/fb_grid_accessible_qt.h"

#include <QAccessible>

#include "screen/fbgrid/fb_accessible_table_qt.h"
#include "screen/fbgrid/fb_grid_widget.h"

namespace jogeon {
namespace {

QAccessibleInterface* MakeTable(const QString&, QObject* object) {
    auto* grid = qobject_cast<CFBGrid*>(object);
    return grid ? new FBAccessibleTable(*grid) : nullptr;
}

// The program may outlive the library that the factory stands in.
class Factory {
public:
    Factory() { QAccessible::installFactory(MakeTable); }
    ~Factory() { QAccessible::removeFactory(MakeTable); }
};

void Announce(CFBGrid& grid, QAccessibleEvent&& event, CCellID cell) {
    event.setChild(FBAccessibleTable::ChildIndex(grid, cell));
    QAccessible::updateAccessibility(&event);
}

}  // namespace

void InstallGridAccessibility() {
    static const Factory factory;
}

void AnnounceFocus(CFBGrid& grid, CCellID cell) {
    if (!QAccessible::isActive() || !grid.IsValid(cell.row, cell.col)) return;
    Announce(grid, QAccessibleEvent(&grid, QAccessible::Focus), cell);
}

void AnnounceCell(CFBGrid& grid, CCellID cell) {
    if (!QAccessible::isActive() || !grid.IsValid(cell.row, cell.col)) return;
    if (grid.GetCell(cell.row, cell.col).state & CCell::kCheck) {
        QAccessible::State changed;
        changed.checked = true;
        Announce(grid, QAccessibleStateChangeEvent(&grid, changed), cell);
    } else {
        Announce(grid, QAccessibleEvent(&grid, QAccessible::NameChanged), cell);
    }
}

void AnnounceReset(CFBGrid& grid) {
    if (!QAccessible::isActive()) return;
    QAccessibleTableModelChangeEvent event(&grid, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&event);
}

}  // namespace jogeon
