// The bars of a chart: candles, volumes, and the marks under bars on which a condition set was true.
#pragma once

#include "terminal/chart/canvas.h"
#include "terminal/chart/scene.h"

namespace jogeon::terminal::chart {

void PaintCandles(Canvas& canvas, const Scene& scene);
void PaintVolumes(Canvas& canvas, const Scene& scene);
void PaintMarks(Canvas& canvas, const Scene& scene);

// Of a mark, in the widget's pixels: its height, and how far below the bar's low it begins.
inline constexpr double kMarkHeight = 6;
inline constexpr double kMarkGap = 3;

}  // namespace jogeon::terminal::chart
