#include "terminal/chart/bar_painter.h"

#include <algorithm>

namespace jogeon::terminal::chart {
namespace {

constexpr double kBodyShare = 0.72;  // of a bar's width; the rest is the gap to the next

// How many pixels of the device a body reaches to either side of its wick.
int HalfBody(const Canvas& canvas, const BarWindow& window) {
    return std::max(0, static_cast<int>(window.BarWidth() * canvas.Ratio() * kBodyShare - canvas.Hair()) / 2);
}

std::vector<FoldedBar> Visible(const Canvas& canvas, const Scene& scene) {
    return FoldBars(scene.content.bars, scene.window.FirstVisible(), scene.window.EndVisible(),
                    canvas.ColumnOf(scene.window));
}

// Several bars in one column are coloured as one bar would be.
Color ColorOf(const Content& content, const FoldedBar& bar) {
    if (bar.open == bar.close) return content.ColorOf(bar.last);
    return bar.close > bar.open ? Color::ChartRise : Color::ChartFall;
}

}  // namespace

void PaintCandles(Canvas& canvas, const Scene& scene) {
    canvas.Clip(scene.panes.price);
    const QColor rise = ToQColor(Color::ChartRise), fall = ToQColor(Color::ChartFall);
    const QColor flat = ToQColor(Color::ChartText);
    const int half = HalfBody(canvas, scene.window), hair = canvas.Hair();
    const auto row = [&](double price) { return canvas.ToDevice(scene.price.YOf(price)); };
    for (const FoldedBar& bar : Visible(canvas, scene)) {
        const Color kind = ColorOf(scene.content, bar);
        const QColor color = kind == Color::ChartRise ? rise : kind == Color::ChartFall ? fall : flat;
        const int high = row(bar.high);
        canvas.Fill({bar.column, high, hair, row(bar.low) - high + hair}, color);
        if (half == 0) continue;
        const int top = row(std::max(bar.open, bar.close)), bottom = row(std::min(bar.open, bar.close));
        canvas.Fill({bar.column - half, top, 2 * half + hair, std::max(hair, bottom - top)}, color);
    }
}

void PaintVolumes(Canvas& canvas, const Scene& scene) {
    canvas.Clip(scene.panes.volume);
    const QColor color = ToQColor(Color::ChartVolume);
    const int half = HalfBody(canvas, scene.window), hair = canvas.Hair();
    const int bottom = canvas.ToDevice(double(scene.panes.volume.top() + scene.panes.volume.height()));
    for (const FoldedBar& bar : Visible(canvas, scene)) {
        if (bar.volume == 0) continue;
        const int top = std::min(bottom - hair, canvas.ToDevice(scene.volume.YOf(bar.volume)));
        canvas.Fill({bar.column - half, top, 2 * half + hair, bottom - top}, color);
    }
}

// A triangle that points at the bar; row by row, so that it is crisp.
void PaintMarks(Canvas& canvas, const Scene& scene) {
    canvas.Clip(scene.panes.price);
    const QColor color = ToQColor(Color::ChartMark);
    const int height = canvas.ToDevice(kMarkHeight), hair = canvas.Hair();
    // Where bars are narrow, marks are slim, so that neighbours stay apart.
    const int most = std::max(1, static_cast<int>(scene.window.BarWidth() * canvas.Ratio()));
    const auto columnOf = canvas.ColumnOf(scene.window);
    const std::vector<int>& bars = scene.marks.bars;
    for (auto bar = std::lower_bound(bars.begin(), bars.end(), scene.window.FirstVisible());
         bar != bars.end() && *bar < scene.window.EndVisible(); ++bar) {
        const int top = canvas.ToDevice(scene.price.YOf(scene.content.At(*bar).low) + kMarkGap);
        for (int row = 0; row < height; ++row) {
            const int half = std::min(row * 2 / 3, most / 2);
            canvas.Fill({columnOf(*bar) - half, top + row, 2 * half + hair, 1}, color);
        }
    }
}

}  // namespace jogeon::terminal::chart
