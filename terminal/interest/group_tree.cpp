#include "terminal/interest/group_tree.h"

#include <QDropEvent>

namespace jogeon::terminal {

GroupTree::GroupTree(QWidget* parent) : QTreeWidget(parent) {
    setDragDropMode(InternalMove);
}

QTreeWidgetItem* GroupTree::AddRow(const QStringList& cells) {
    auto* row = new QTreeWidgetItem(this, cells);
    row->setFlags(row->flags() & ~Qt::ItemIsDropEnabled);
    return row;
}

// Ignored as a move, after which the view would take the row out.
void GroupTree::dropEvent(QDropEvent* event) {
    const QPoint at = event->position().toPoint();
    QTreeWidgetItem* over = itemAt(at);
    const bool below = over && at.y() > visualItemRect(over).center().y();
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    setState(NoState);
    viewport()->update();
    emit RowDropped(over ? indexOfTopLevelItem(over) + (below ? 1 : 0) : topLevelItemCount());
}

}  // namespace jogeon::terminal
