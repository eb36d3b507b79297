#include "screen/saved/reorder_list_widget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include "screen/palette/colors_qt.h"

namespace jogeon {
namespace {

constexpr int kDropLookDown = 3;  // pixels below the pointer at which the row of a drop is sought
constexpr int kMarkWidth = 2;
constexpr int kPale = 160;  // of 255: how much of the dragged row is covered

}  // namespace

ReorderListWidget::ReorderListWidget(QWidget* parent) : QTreeWidget(parent) {}

int ReorderListWidget::RowAt(QPoint place) const {
    if (!viewport()->rect().contains(place)) return -1;
    return indexOfTopLevelItem(itemAt(place));
}

void ReorderListWidget::mousePressEvent(QMouseEvent* event) {
    QTreeWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton) return;
    pressedAt_ = event->position().toPoint();
    pressedRow_ = RowAt(pressedAt_);
}

// The base class would select the rows that the pointer passes.
void ReorderListWidget::mouseMoveEvent(QMouseEvent* event) {
    if (pressedRow_ < 0) return;
    const QPoint pointer = event->position().toPoint();
    if (!dragging_ && (pointer - pressedAt_).manhattanLength() < QApplication::startDragDistance()) return;
    if (!dragging_) viewport()->setCursor(Qt::ClosedHandCursor);
    dragging_ = true;
    // Beyond the upper or lower edge the rows come by, one for each move.
    if (pointer.y() < 0) verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    if (pointer.y() >= viewport()->height()) {
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    }
    MarkDrop(pointer);
}

void ReorderListWidget::MarkDrop(QPoint pointer) {
    markedRow_ = viewport()->rect().contains(pointer) ? RowAt(pointer + QPoint(0, kDropLookDown)) : -1;
    viewport()->update();
}

void ReorderListWidget::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton) return;
    if (dragging_) MarkDrop(event->position().toPoint());
    const int row = pressedRow_;
    const int before = dragging_ ? markedRow_ : -1;
    EndDrag();
    if (before >= 0) emit dropped(row, before);
}

// Esc ends the drag, not the dialog; any other key waits until it has ended.
void ReorderListWidget::keyPressEvent(QKeyEvent* event) {
    if (!dragging_) return QTreeWidget::keyPressEvent(event);
    if (event->key() == Qt::Key_Escape) EndDrag();
}

void ReorderListWidget::EndDrag() {
    pressedRow_ = markedRow_ = -1;
    dragging_ = false;
    viewport()->unsetCursor();
    viewport()->update();
}

void ReorderListWidget::paintEvent(QPaintEvent* event) {
    QTreeWidget::paintEvent(event);
    if (!dragging_) return;
    QPainter painter(viewport());
    QColor veil = ToQColor(Color::ControlFace);
    veil.setAlpha(kPale);
    painter.fillRect(visualItemRect(topLevelItem(pressedRow_)), veil);
    if (markedRow_ < 0) return;
    const int line = visualItemRect(topLevelItem(markedRow_)).top();
    const QColor accent = ToQColor(Color::Accent);
    painter.fillRect(0, std::max(line - kMarkWidth / 2, 0), viewport()->width(), kMarkWidth, accent);
}

}  // namespace jogeon
