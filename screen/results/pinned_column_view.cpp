#include "screen/results/pinned_column_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

namespace jogeon {

// The header repeats the pinned section in the same way, and has no edges to drag under it.
class PinnedColumnView::Header : public QHeaderView {
public:
    explicit Header(PinnedColumnView& table) : QHeaderView(Qt::Horizontal, &table), table_(table) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        QHeaderView::paintEvent(event);
        const int width = table_.PinnedWidth();
        if (width == 0) return;
        QPainter painter(viewport());
        paintSection(&painter, QRect(0, 0, width, height()), table_.pinned_);
    }

    void mousePressEvent(QMouseEvent* event) override {
        if (event->position().x() >= table_.PinnedWidth()) QHeaderView::mousePressEvent(event);
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        const bool covered = event->buttons() == Qt::NoButton && event->position().x() < table_.PinnedWidth();
        if (covered) {
            unsetCursor();
        } else {
            QHeaderView::mouseMoveEvent(event);
        }
    }

private:
    PinnedColumnView& table_;
};

PinnedColumnView::PinnedColumnView(QWidget* parent) : QTableView(parent) {
    setHorizontalHeader(new Header(*this));
    setHorizontalScrollMode(ScrollPerPixel);
}

void PinnedColumnView::SetPinnedColumn(int column) {
    pinned_ = column;
    viewport()->update();
    horizontalHeader()->viewport()->update();
}

int PinnedColumnView::PinnedWidth() const {
    if (pinned_ < 0 || !model() || pinned_ >= model()->columnCount() || isColumnHidden(pinned_)) return 0;
    return columnViewportPosition(pinned_) < 0 ? columnWidth(pinned_) : 0;
}

QModelIndex PinnedColumnView::indexAt(const QPoint& pos) const {
    const QModelIndex under = QTableView::indexAt(pos);
    return under.isValid() && pos.x() < PinnedWidth() ? under.siblingAtColumn(pinned_) : under;
}

void PinnedColumnView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (index.column() == pinned_ && PinnedWidth() > 0) {
        // The column is in view wherever the table stands: only the row is to be scrolled to.
        const int kept = horizontalScrollBar()->value();
        QTableView::scrollTo(index, hint);
        horizontalScrollBar()->setValue(kept);
        return;
    }
    QTableView::scrollTo(index, hint);
    const int covered = PinnedWidth() - columnViewportPosition(index.column());
    if (index.isValid() && covered > 0) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - covered);
    }
}

void PinnedColumnView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    PaintPinned(event->rect());
}

void PinnedColumnView::PaintPinned(const QRect& part) {
    const int width = PinnedWidth();
    if (width == 0 || part.left() >= width || !itemDelegate()) return;
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QStyle::State plain = option.state & ~QStyle::State_Selected;
    for (int row = rowAt(part.top()); row >= 0 && row < model()->rowCount(); ++row) {
        option.rect = QRect(0, rowViewportPosition(row), width, rowHeight(row));
        if (option.rect.top() > part.bottom()) break;
        const QModelIndex index = model()->index(row, pinned_);
        option.state = selectionModel()->isSelected(index) ? plain | QStyle::State_Selected : plain;
        itemDelegate()->paint(&painter, option, index);
    }
}

void PinnedColumnView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (dx == 0) return;
    // Scrolling moves the pixels of the pinned column too.
    viewport()->update();
    horizontalHeader()->viewport()->update();
}

}  // namespace jogeon
