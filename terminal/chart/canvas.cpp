#include "terminal/chart/canvas.h"

namespace jogeon::terminal::chart {
namespace {

constexpr int kDot = 3;           // pixels of the device, and as many between two
constexpr double kLineWidth = 1;  // logical; Qt draws lines of one pixel much faster than any wider

// Beyond this, far outside of any pane, a value's place would only cost time.
constexpr double kFarthest = 1e5;

}  // namespace

Canvas::Canvas(QPainter& painter) : painter_(painter), ratio_(painter.deviceTransform().m11()) {
    painter_.save();
    painter_.scale(1 / ratio_, 1 / ratio_);
}

Canvas::~Canvas() {
    painter_.restore();
}

QRect Canvas::ToDevice(const QRect& logical) const {
    const int left = ToDevice(double(logical.left())), top = ToDevice(double(logical.top()));
    return {left, top, ToDevice(logical.left() + double(logical.width())) - left,
            ToDevice(logical.top() + double(logical.height())) - top};
}

void Canvas::Horizontal(double y, double left, double right, QColor color, Stroke stroke) {
    const int row = ToDevice(y), end = ToDevice(right);
    if (stroke == Stroke::Plain) return Fill({ToDevice(left), row, end - ToDevice(left), Hair()}, color);
    for (int x = ToDevice(left); x < end; x += 2 * kDot)
        Fill({x, row, std::min(kDot, end - x), Hair()}, color);
}

void Canvas::Vertical(double x, double top, double bottom, QColor color, Stroke stroke) {
    const int column = ToDevice(x), end = ToDevice(bottom);
    if (stroke == Stroke::Plain) return Fill({column, ToDevice(top), Hair(), end - ToDevice(top)}, color);
    for (int y = ToDevice(top); y < end; y += 2 * kDot)
        Fill({column, y, Hair(), std::min(kDot, end - y)}, color);
}

void Canvas::Curve(const Series& values, const BarWindow& window, const ValueScale& scale, QColor color) {
    // One bar more on either side, so that the line doesn't end inside the pane.
    const int first = std::max(0, window.FirstVisible() - 1);
    const int end = std::min(window.Bars(), window.EndVisible() + 1);
    const std::vector<FoldedValue> folded = FoldSeries(values, first, end, ColumnOf(window));
    if (window.BarWidth() * ratio_ < 1) return Spans(folded, scale, color);
    for (std::size_t at = 0; at < folded.size();) {
        std::size_t next = at + 1;
        while (next < folded.size() && !folded[next].begins) ++next;
        Smooth({folded.data() + at, next - at}, scale, color);
        at = next;
    }
}

void Canvas::Smooth(std::span<const FoldedValue> values, const ValueScale& scale, QColor color) {
    QPolygonF points;
    points.reserve(static_cast<qsizetype>(values.size()));
    for (const FoldedValue& value : values) {
        const double y = std::clamp(scale.YOf(value.last) * ratio_, -kFarthest, kFarthest);
        points.append({value.column + Hair() / 2.0, y + Hair() / 2.0});
    }
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(color, kLineWidth * ratio_));
    painter_.drawPolyline(points);
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

// Each span reaches to where the one before ended, so that the line has no holes.
void Canvas::Spans(std::span<const FoldedValue> values, const ValueScale& scale, QColor color) {
    const FoldedValue* before = nullptr;
    for (const FoldedValue& value : values) {
        double low = value.low, high = value.high;
        if (before && !value.begins) {
            low = std::min(low, before->last);
            high = std::max(high, before->last);
        }
        const int top = RowOf(scale, high);
        Fill({value.column, top, 1, RowOf(scale, low) - top + Hair()}, color);
        before = &value;
    }
}

}  // namespace jogeon::terminal::chart
