// The settings page of the result grid's columns: which are shown, in what order, how wide.
//
// The order is changed by dragging or by buttons. The stock's name is always shown.
#pragma once

#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>
#include <vector>

#include "screen/host/services.h"

namespace jogeon::terminal {

class ColumnsPage : public QWidget {
    Q_OBJECT

public:
    explicit ColumnsPage(QWidget* parent = nullptr);

    void Show(std::vector<host::GridColumnChoice> columns);
    std::vector<host::GridColumnChoice> Choices() const;

private:
    QTreeWidgetItem* MakeItem(int index) const;
    void SetUpList();
    QPushButton* AddMove(const QString& text, const char* name, int (*target)(int row, int last));
    void MoveCurrent(int target);
    void ShowCurrent();

    std::vector<host::GridColumnChoice> columns_;  // as they were given; an item knows its place here
    QTreeWidget list_;
    QSpinBox width_;
};

}  // namespace jogeon::terminal
