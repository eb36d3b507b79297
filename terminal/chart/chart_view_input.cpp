// The trader's hand on the chart: wheel, drags and keys.
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "terminal/chart/chart_view.h"

namespace jogeon::terminal::chart {
namespace {

constexpr double kWheelZoom = 1.15;  // of one notch
constexpr double kWheelNotch = 120;
constexpr double kKeyZoom = 1.25;
constexpr double kKeyPan = 3;        // bars
constexpr double kPagePan = 0.9;     // of the width
constexpr double kDragZoom = 0.008;  // of a pixel; e to the power of it

}  // namespace

void ChartView::MovedByTrader() {
    lastDay_ = 0;
    Moved();
}

// A wheel zooms around the pointer; a wheel to the side moves.
void ChartView::wheelEvent(QWheelEvent* event) {
    if (!HasBars()) return event->ignore();
    const QPoint angle = event->angleDelta();
    if (angle.y() != 0)
        window_.ZoomAt(event->position().x(), std::pow(kWheelZoom, angle.y() / kWheelNotch));
    else
        window_.PanBars(angle.x() / kWheelNotch * kKeyPan);
    MovedByTrader();
    event->accept();
}

void ChartView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !HasBars()) return;
    const QPoint at = event->position().toPoint();
    drag_ = panes_.dates.contains(at) ? Drag::Zoom : Drag::Pan;
    dragFrom_ = at.x();
    RefreshCursor(at);
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
    if (!HasBars()) return;
    const QPoint at = event->position().toPoint();
    const int moved = at.x() - std::exchange(dragFrom_, at.x());
    if (drag_ == Drag::Pan) window_.Pan(moved);
    if (drag_ == Drag::Zoom) window_.ZoomAtEnd(std::exp(kDragZoom * moved));
    if (drag_ != Drag::None) MovedByTrader();
    pointer_ = at;
    if (at.x() >= panes_.Right() || at.y() < panes_.price.top()) pointer_.reset();
    RefreshCursor(at);
    update();
}

void ChartView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    drag_ = Drag::None;
    RefreshCursor(event->position().toPoint());
}

void ChartView::RefreshCursor(QPoint at) {
    if (drag_ == Drag::Pan) return setCursor(Qt::ClosedHandCursor);
    if (drag_ == Drag::Zoom || panes_.dates.contains(at)) return setCursor(Qt::SizeHorCursor);
    setCursor(pointer_ ? Qt::CrossCursor : Qt::ArrowCursor);
}

void ChartView::leaveEvent(QEvent*) {
    pointer_.reset();
    update();
}

void ChartView::keyPressEvent(QKeyEvent* event) {
    if (!HasBars() || !MoveByKey(event->key())) return QWidget::keyPressEvent(event);
    MovedByTrader();
}

// False for a key that means nothing here.
bool ChartView::MoveByKey(int key) {
    switch (key) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            window_.ZoomAtEnd(kKeyZoom);
            return true;
        case Qt::Key_Minus:
            window_.ZoomAtEnd(1 / kKeyZoom);
            return true;
        case Qt::Key_Left:
            window_.PanBars(kKeyPan);
            return true;
        case Qt::Key_Right:
            window_.PanBars(-kKeyPan);
            return true;
        case Qt::Key_PageUp:
            window_.PanPages(kPagePan);
            return true;
        case Qt::Key_PageDown:
            window_.PanPages(-kPagePan);
            return true;
        case Qt::Key_Home:
            window_.ToOldest();
            return true;
        case Qt::Key_End:
            window_.ToNewest();
            return true;
        default:
            return false;
    }
}

}  // namespace jogeon::terminal::chart
