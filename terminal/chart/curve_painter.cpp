#include "terminal/chart/curve_painter.h"

namespace jogeon::terminal::chart {
namespace {

void PaintHistogram(Canvas& canvas, const Scene& scene) {
    const QColor rise = ToQColor(Color::ChartRise), fall = ToQColor(Color::ChartFall);
    const int half = std::max(0, static_cast<int>(scene.window.BarWidth() * canvas.Ratio() / 4));
    const int zero = canvas.ToDevice(scene.lower.YOf(0));
    const auto columnOf = canvas.ColumnOf(scene.window);
    for (const FoldedValue& value : FoldSeries(scene.content.study.histogram, scene.window.FirstVisible(),
                                               scene.window.EndVisible(), columnOf)) {
        const int end = canvas.ToDevice(scene.lower.YOf(value.last));
        canvas.Fill(
            {value.column - half, std::min(zero, end), 2 * half + canvas.Hair(), std::abs(end - zero)},
            value.last > 0 ? rise : fall);
    }
}

}  // namespace

void PaintOverlays(Canvas& canvas, const Scene& scene) {
    canvas.Clip(scene.panes.price);
    for (const Curve& curve : scene.content.study.bands)
        canvas.Curve(curve.values, scene.window, scene.price, ToQColor(curve.color));
    for (const Curve& curve : scene.content.study.averages)
        canvas.Curve(curve.values, scene.window, scene.price, ToQColor(curve.color));
}

void PaintLower(Canvas& canvas, const Scene& scene) {
    const Study& study = scene.content.study;
    if (study.kind == Lower::None) return;
    canvas.Clip(scene.panes.lowerCurves);
    for (double level : study.levels)
        canvas.Horizontal(scene.lower.YOf(level), 0, scene.panes.Right(), ToQColor(Color::ChartCrosshair),
                          Canvas::Stroke::Dotted);
    if (!study.histogram.empty()) PaintHistogram(canvas, scene);
    for (const Curve& curve : study.lower)
        canvas.Curve(curve.values, scene.window, scene.lower, ToQColor(curve.color));
}

}  // namespace jogeon::terminal::chart
