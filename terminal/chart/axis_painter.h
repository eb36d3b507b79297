// The ground of a chart: background, grid, the names of values and dates.
#pragma once

#include <QPainter>

#include "terminal/chart/scene.h"

namespace jogeon::terminal::chart {

void PaintGround(QPainter& painter, const Scene& scene);

// A value's name on the axis right of the panes, on a ground of its own. `y` is the middle.
void PaintAxisTag(QPainter& painter, const Scene& scene, double y, const QString& text, QColor back);

// The width that the axis needs for the values of this stock.
int AxisWidth(const QFontMetrics& metrics, const Content& content);

}  // namespace jogeon::terminal::chart
