#include "terminal/chart/chart_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "terminal/chart/axis_painter.h"
#include "terminal/chart/bar_painter.h"
#include "terminal/chart/curve_painter.h"
#include "terminal/chart/pointer_painter.h"

namespace jogeon::terminal::chart {
namespace {

constexpr double kWheelZoom = 1.15;  // of one notch
constexpr double kWheelNotch = 120;
constexpr double kKeyZoom = 1.25;
constexpr double kKeyPan = 3;        // bars
constexpr double kPagePan = 0.9;     // of the width
constexpr double kDragZoom = 0.008;  // of a pixel; e to the power of it
constexpr int kDatePadding = 6;

}  // namespace

ChartView::ChartView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ChartView::Show(Content content) {
    content_ = std::move(content);
    marks_ = {};
    message_.clear();
    window_.SetBars(static_cast<int>(content_.bars.size()));
    Arrange();
}

void ChartView::SetStudy(Study study) {
    content_.study = std::move(study);
    Arrange();
}

void ChartView::SetMarks(Marks marks) {
    marks_ = std::move(marks);
    Arrange();
}

void ChartView::ShowMessage(const QString& message) {
    Show({});
    message_ = message;
    setAccessibleDescription(message);
}

void ChartView::Restyle() {
    Arrange();
}

// Legend and axes take the room that they need, the panes the rest.
void ChartView::Arrange() {
    Moved();
    if (!HasBars()) return;
    const QFontMetrics metrics = fontMetrics();
    legend_ = Legend(metrics, content_, marks_, width());
    panes_ = LayOut(size(), {legend_.Height(), legend_.LowerHeight(), AxisWidth(metrics, content_),
                             metrics.height() + kDatePadding});
    window_.SetWidth(panes_.Right());
}

void ChartView::Moved() {
    scene_.reset();
    layer_ = {};
    update();
}

const Scene& ChartView::CurrentScene() const {
    if (!scene_) scene_.emplace(content_, marks_, window_, panes_);
    return *scene_;
}

void ChartView::PaintLayer() {
    const double ratio = devicePixelRatioF();
    layer_ =
        QPixmap(static_cast<int>(std::ceil(width() * ratio)), static_cast<int>(std::ceil(height() * ratio)));
    layerRatio_ = ratio;
    layer_.fill(ToQColor(Color::ChartBack));
    QPainter painter(&layer_);
    painter.setFont(font());
    painter.scale(ratio, ratio);
    const Scene& scene = CurrentScene();
    PaintGround(painter, scene);
    {
        Canvas canvas(painter);
        PaintVolumes(canvas, scene);
        PaintCandles(canvas, scene);
        PaintOverlays(canvas, scene);
        PaintMarks(canvas, scene);
        PaintLower(canvas, scene);
    }
    PaintLastPrice(painter, scene);
}

void ChartView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!HasBars()) {
        painter.fillRect(rect(), ToQColor(Color::ChartBack));
        painter.setPen(ToQColor(Color::ChartText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, message_);
        return;
    }
    const double ratio = devicePixelRatioF();
    if (layer_.isNull() || layerRatio_ != ratio) PaintLayer();
    // Pixel for pixel: a painter that scales would pick each of them anew.
    painter.scale(1 / ratio, 1 / ratio);
    painter.drawPixmap(0, 0, layer_);
    painter.resetTransform();
    const Scene& scene = CurrentScene();
    const int under = pointer_ ? window_.BarAt(pointer_->x()) : -1;
    legend_.Paint(painter, scene, under < 0 ? content_.Last() : under);
    if (pointer_) PaintCrosshair(painter, scene, *pointer_);
}

void ChartView::resizeEvent(QResizeEvent*) {
    Arrange();
}

void ChartView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) Arrange();
    QWidget::changeEvent(event);
}

// A wheel zooms around the pointer; a wheel to the side moves.
void ChartView::wheelEvent(QWheelEvent* event) {
    if (!HasBars()) return event->ignore();
    const QPoint angle = event->angleDelta();
    if (angle.y() != 0)
        window_.ZoomAt(event->position().x(), std::pow(kWheelZoom, angle.y() / kWheelNotch));
    else
        window_.PanBars(angle.x() / kWheelNotch * kKeyPan);
    Moved();
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
    if (drag_ != Drag::None) Moved();
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
    Moved();
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
