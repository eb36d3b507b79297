// A list whose rows are dragged to another place.
//
// The rows stay where they are: the list only says where one was dropped, and whoever fills it moves it.
#pragma once

#include <QTreeWidget>

namespace jogeon::terminal {

class GroupTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit GroupTree(QWidget* parent = nullptr);

    // Adds a row, which takes no other row into it.
    QTreeWidgetItem* AddRow(const QStringList& cells);

signals:
    // The current row was dropped before row `place`; behind the last one if there is none.
    void RowDropped(int place);

protected:
    void dropEvent(QDropEvent* event) override;
};

}  // namespace jogeon::terminal
