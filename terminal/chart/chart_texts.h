// The translation context of what is painted in a chart.
#pragma once

#include <QCoreApplication>

namespace jogeon::terminal::chart {

class ChartTexts {
    Q_DECLARE_TR_FUNCTIONS(ChartTexts)
};

}  // namespace jogeon::terminal::chart
