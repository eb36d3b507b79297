// The list of the reorder dialog: its rows can be dragged to another place.
//
// While a row is dragged it is pale, and a line shows before which row it would go. The list itself moves
// nothing: it tells what was dropped.
#pragma once

#include <QTreeWidget>

namespace jogeon {

class ReorderListWidget : public QTreeWidget {
    Q_OBJECT

public:
    explicit ReorderListWidget(QWidget* parent);

signals:
    // The row `row` was dropped before the row `before`.
    void dropped(int row, int before);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int RowAt(QPoint place) const;
    void MarkDrop(QPoint pointer);
    void EndDrag();

    int pressedRow_ = -1;
    QPoint pressedAt_;
    bool dragging_ = false;
    int markedRow_ = -1;  // before which the dragged row would go; -1 outside the rows
};

}  // namespace jogeon
