#include "terminal/chart/pointer_painter.h"

#include <algorithm>
#include <cmath>

#include "terminal/chart/axis_painter.h"
#include "terminal/chart/canvas.h"
#include "terminal/texts/value_texts.h"

namespace jogeon::terminal::chart {
namespace {

constexpr int kDatePadding = 5;

// The text of the value under the pointer; empty between the panes.
QString ValueText(const Scene& scene, QPoint at) {
    const Panes& panes = scene.panes;
    if (panes.price.contains(at)) return PriceText(std::round(scene.price.ValueAt(at.y())));
    if (panes.volume.contains(at))
        return VolumeText(std::max(0.0, scene.volume.ValueAt(at.y())), scene.volume.Top());
    if (panes.lowerCurves.contains(at)) return NumberText(scene.lower.ValueAt(at.y()), 1);
    return {};
}

void PaintDateTag(QPainter& painter, const Scene& scene, int bar) {
    const QString text = DateText(scene.content.At(bar).date);
    const int width = painter.fontMetrics().horizontalAdvance(text) + 2 * kDatePadding;
    const int most = std::max(0, scene.panes.Right() - width);
    const int left = std::clamp(static_cast<int>(scene.window.CentreOf(bar)) - width / 2, 0, most);
    const QRect place(left, scene.panes.dates.top() + 1, width, scene.panes.dates.height() - 2);
    Canvas(painter).FillLogical(place, ToQColor(Color::ChartCrosshair));
    painter.setPen(ToQColor(Color::ChartBack));
    painter.drawText(place, Qt::AlignCenter, text);
}

}  // namespace

void PaintLastPrice(QPainter& painter, const Scene& scene) {
    const int last = scene.content.Last();
    const double y = scene.price.YOf(scene.content.At(last).close);
    const QRect& pane = scene.panes.price;
    if (y < pane.top() || y > pane.bottom()) return;
    const QColor color = ToQColor(
        std::isnan(scene.content.ChangeOf(last)) || scene.content.ChangeOf(last) == 0 ? Color::ChartText
        : scene.content.ChangeOf(last) > 0                                            ? Color::ChartRise
                                                                                      : Color::ChartFall);
    Canvas(painter).Horizontal(y, 0, scene.panes.Right(), color, Canvas::Stroke::Dotted);
    PaintAxisTag(painter, scene, y, PriceText(scene.content.At(last).close), color);
}

void PaintCrosshair(QPainter& painter, const Scene& scene, QPoint at) {
    const int bar = scene.window.BarAt(at.x());
    if (bar < 0) return;
    const QColor color = ToQColor(Color::ChartCrosshair);
    const Panes& panes = scene.panes;
    Canvas(painter).Vertical(scene.window.CentreOf(bar), panes.price.top(), panes.Bottom(), color,
                             Canvas::Stroke::Dotted);
    PaintDateTag(painter, scene, bar);
    const QString value = ValueText(scene, at);
    if (value.isEmpty()) return;
    Canvas(painter).Horizontal(at.y(), 0, panes.Right(), color, Canvas::Stroke::Dotted);
    PaintAxisTag(painter, scene, at.y(), value, color);
}

}  // namespace jogeon::terminal::chart
