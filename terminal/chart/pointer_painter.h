// What stands above the bars: the tag of the last price, and the crosshair with the values it points at.
#pragma once

#include <QPainter>

#include "terminal/chart/scene.h"

namespace jogeon::terminal::chart {

void PaintLastPrice(QPainter& painter, const Scene& scene);

// `at` is the pointer in the widget's pixels; the vertical line stands at the bar nearest to it.
void PaintCrosshair(QPainter& painter, const Scene& scene, QPoint at);

}  // namespace jogeon::terminal::chart
