// A table one of whose columns never leaves at the left: scrolled past it, the table shows it at its left
// edge.
//
// The column is painted a second time over the scrolled cells, by the table's own delegate, so there is no
// second view to keep in step. Rows are of one height.
#pragma once

#include <QHeaderView>
#include <QTableView>

namespace jogeon {

class PinnedColumnView : public QTableView {
    Q_OBJECT

public:
    explicit PinnedColumnView(QWidget* parent);

    // The column to keep, from 0; -1 for none.
    void SetPinnedColumn(int column);

    // Where the pinned column covers others at this moment, in pixels from the left; 0 while it's in its
    // place.
    int PinnedWidth() const;

    QModelIndex indexAt(const QPoint& pos) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    class Header;

    void PaintPinned(const QRect& part);

    int pinned_ = -1;
};

}  // namespace jogeon
