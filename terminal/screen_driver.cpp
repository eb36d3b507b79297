#include "terminal/screen_driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QTableView>
#include <QTreeView>
#include <algorithm>

namespace jogeon::terminal {
namespace {

constexpr char kTree[] = "21001";
constexpr char kResultGrid[] = "21104";

// The roots that hold sets. The others hold indicators, some of which have the name of a set.
constexpr const char* kSetRoots[] = {"사용자저장조건", "노빅조건"};

// Leaves of a tree in the order they are shown.
void CollectLeaves(const QAbstractItemModel& model, const QModelIndex& parent, QModelIndexList& leaves) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.hasChildren(index)) {
            CollectLeaves(model, index, leaves);
        } else {
            leaves.append(index);
        }
    }
}

QModelIndexList SetsOf(const QWidget& window) {
    QModelIndexList leaves;
    const auto* tree = window.findChild<QTreeView*>(kTree);
    for (int row = 0; tree && row < tree->model()->rowCount(); ++row) {
        const QModelIndex root = tree->model()->index(row, 0);
        if (std::ranges::count(kSetRoots, root.data().toString()) > 0) {
            CollectLeaves(*tree->model(), root, leaves);
        }
    }
    return leaves;
}

void DoubleClick(QAbstractItemView& view, const QModelIndex& index) {
    view.scrollTo(index);
    const QPointF point = view.visualRect(index).center();
    const QPointF global = view.viewport()->mapToGlobal(point);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, point, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &event);
    }
}

}  // namespace

bool ScreenDriver::OpenSet(const QString& name) {
    for (const QModelIndex& index : SetsOf(window_)) {
        if (index.data().toString() != name) continue;
        DoubleClick(*window_.findChild<QTreeView*>(kTree), index);
        return true;
    }
    return false;
}

QStringList ScreenDriver::SetNames() const {
    QStringList names;
    for (const QModelIndex& index : SetsOf(window_)) names.append(index.data().toString());
    return names;
}

QList<QStringList> ScreenDriver::Rows(int count) const {
    QList<QStringList> rows;
    const auto* grid = window_.findChild<QTableView*>(kResultGrid);
    if (!grid) return rows;
    const QAbstractItemModel& model = *grid->model();
    for (int row = -1; row < std::min(count, model.rowCount()); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            if (grid->isColumnHidden(column)) continue;
            cells.append(row < 0 ? model.headerData(column, Qt::Horizontal).toString()
                                 : model.index(row, column).data().toString());
        }
        rows.append(cells);
    }
    return rows;
}

void ScreenDriver::Click(int control) {
    if (auto* button = window_.findChild<QAbstractButton*>(QString::number(control))) button->click();
}

}  // namespace jogeon::terminal
