#include "terminal/chart/chart_view.h"

#include <QEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "terminal/chart/axis_painter.h"
#include "terminal/chart/bar_painter.h"
#include "terminal/chart/curve_painter.h"
#include "terminal/chart/pointer_painter.h"

namespace jogeon::terminal::chart {
namespace {

constexpr int kDatePadding = 6;

}  // namespace

ChartView::ChartView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ChartView::Show(Content content) {
    lastDay_ = content.code == content_.code ? LastDay() : 0;
    content_ = std::move(content);
    marks_ = {};
    message_.clear();
    window_.SetBars(static_cast<int>(content_.bars.size()));
    if (lastDay_) window_.ShowLast(LastUpTo(content_.bars, content_.timeframe, lastDay_));
    Arrange();
}

// Of what is in view, or was where the trader moved last; 0 where that is the newest bar, which then stays.
int ChartView::LastDay() const {
    if (lastDay_ || window_.EndVisible() == window_.Bars()) return lastDay_;
    return content_.At(window_.EndVisible() - 1).date;
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
    if (HasBars())
        PaintChart(painter);
    else
        PaintMessage(painter);
    if (!hasFocus()) return;
    painter.setPen(ToQColor(Color::Accent));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ChartView::PaintMessage(QPainter& painter) const {
    painter.fillRect(rect(), ToQColor(Color::ChartBack));
    painter.setPen(ToQColor(Color::ChartText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, message_);
}

void ChartView::PaintChart(QPainter& painter) {
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

}  // namespace jogeon::terminal::chart
