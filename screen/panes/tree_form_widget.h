// The controls of the tree pane at their places: find row, tabs, tree and list, save button.
//
// Each control's object name is its number. What they do is the pane's.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

#include "screen/panes/flat_list_view.h"
#include "screen/results/result_tabs_widget.h"

namespace jogeon {

class TreeForm : public QWidget {
    Q_OBJECT

public:
    enum Tab { kTreeTab, kListTab };

    explicit TreeForm(QWidget* parent);

    // Shows the tree or the list with what belongs to it.
    void ShowTab(int tab);
    bool ListShown() const { return tabs.SelectedTab() == kListTab; }

    // The one of tree and list that is shown.
    QTreeWidget& Shown() { return ListShown() ? list : tree; }

    // `text` in the counter with `hint` for its tooltip; without hits there is nothing to step through.
    void ShowCounter(const QString& text, const QString& hint, bool hits);

    void RefreshColors();

    QLineEdit findText;
    QToolButton find;
    QToolButton previous;
    QToolButton next;
    CNVTab tabs;
    QLabel counter;
    QTreeWidget tree;
    FlatList list;
    QPushButton save;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void NameControls();
    void SetUpTree();
    void LayOut();
    void SetTabOrder();
};

}  // namespace jogeon
