// What the trader has chosen in a chart, from one session to the next.
#pragma once

#include <QSettings>

#include "terminal/chart/study.h"

namespace jogeon::terminal::chart {

void Keep(QSettings& settings, const Choice& choice);

// What is missing, or isn't a choice, is as in a new chart.
Choice ReadKept(const QSettings& settings);

}  // namespace jogeon::terminal::chart
