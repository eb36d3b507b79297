// Draws in whole pixels of the device, so that thin lines and bodies are crisp at every scale.
//
// While one lives, its painter counts in pixels of the device; afterwards in the widget's again. What is
// given as "logical" is in the widget's pixels.
#pragma once

#include <QPainter>
#include <span>

#include "screen/palette/colors_qt.h"
#include "terminal/chart/bar_fold.h"
#include "terminal/chart/bar_window.h"
#include "terminal/chart/value_scale.h"

namespace jogeon::terminal::chart {

class Canvas {
public:
    explicit Canvas(QPainter& painter);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    double Ratio() const { return ratio_; }
    int ToDevice(double logical) const { return qRound(logical * ratio_); }
    QRect ToDevice(const QRect& logical) const;

    // The thickness of a thin line.
    int Hair() const { return std::max(1, static_cast<int>(ratio_ + 0.25)); }

    // In pixels of the device.
    void Fill(const QRect& rect, QColor color) { painter_.fillRect(rect, color); }

    void FillLogical(const QRect& logical, QColor color) { Fill(ToDevice(logical), color); }

    // Thin lines between logical ends. Dotted: every other few pixels.
    enum class Stroke { Plain, Dotted };
    void Horizontal(double y, double left, double right, QColor color, Stroke stroke = Stroke::Plain);
    void Vertical(double x, double top, double bottom, QColor color, Stroke stroke = Stroke::Plain);

    // The column of pixels in whose middle a bar stands.
    auto ColumnOf(const BarWindow& window) const {
        return
            [this, &window](int bar) { return static_cast<int>(std::floor(window.CentreOf(bar) * ratio_)); };
    }

    // A smooth line through the values in view, or, where bars share columns, one span for each column.
    void Curve(const Series& values, const BarWindow& window, const ValueScale& scale, QColor color);

    // Nothing is drawn outside of `logical` until the canvas goes.
    void Clip(const QRect& logical) { painter_.setClipRect(ToDevice(logical)); }

private:
    int RowOf(const ValueScale& scale, double value) const { return ToDevice(scale.YOf(value)); }
    void Smooth(std::span<const FoldedValue> values, const ValueScale& scale, QColor color);
    void Spans(std::span<const FoldedValue> values, const ValueScale& scale, QColor color);

    QPainter& painter_;
    const double ratio_;
};

}  // namespace jogeon::terminal::chart
