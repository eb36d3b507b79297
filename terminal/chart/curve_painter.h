// The lines of a chart: moving averages and bands among the bars, the lower indicator in its pane.
#pragma once

#include "terminal/chart/canvas.h"
#include "terminal/chart/scene.h"

namespace jogeon::terminal::chart {

void PaintOverlays(Canvas& canvas, const Scene& scene);
void PaintLower(Canvas& canvas, const Scene& scene);

}  // namespace jogeon::terminal::chart
