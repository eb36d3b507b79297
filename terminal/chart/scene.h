// A chart ready to be drawn: what it shows, which bars of it, and where everything stands.
#pragma once

#include <QFontMetrics>
#include <QRect>
#include <QString>
#include <memory>

#include "terminal/chart/bar_window.h"
#include "terminal/chart/study.h"

namespace jogeon::terminal::chart {

// What is known of the stock and computed from it.
struct Content {
    QString code;
    QString name;
    market::Timeframe timeframe = market::Timeframe::Day;
    Bars bars;
    Study study;

    int Last() const { return static_cast<int>(bars.size()) - 1; }
    const service::ChartBar& At(int bar) const { return bars[static_cast<std::size_t>(bar)]; }

    // Against the close of the bar before, in percent; NaN for the first bar.
    double ChangeOf(int bar) const;

    // Red where the bar rose from its open, or else from the close before; blue where it fell.
    Color ColorOf(int bar) const;
};

// The bars on which the trader's conditions were true.
struct Marks {
    bool known = false;     // false: nothing was asked, or no answer can be had
    int days = 0;           // how many days they were true
    std::vector<int> bars;  // that hold such a day, ascending
};

// Rectangles in the widget's pixels, from top to bottom. All panes begin at x 0 and have the same width; what
// is right of them belongs to the axes of their values.
struct Panes {
    QRect legend;
    QRect price;
    QRect volume;
    QRect lower;        // empty without a lower indicator
    QRect lowerCurves;  // the part of it below its legend
    QRect dates;

    int Right() const { return price.right() + 1; }
    int Bottom() const { return dates.top(); }
};

// What the texts need, in pixels.
struct Room {
    int legend = 0;       // height
    int lowerLegend = 0;  // height; 0 without a lower indicator
    int axis = 0;         // width
    int dates = 0;        // height
};
Panes LayOut(QSize size, const Room& room);

struct Scene {
    Scene(const Content& shown, const Marks& shownMarks, const BarWindow& bars, const Panes& places);

    const Content& content;
    const Marks& marks;
    const BarWindow& window;
    const Panes panes;
    const ValueScale price;
    const ValueScale volume;
    const ValueScale lower;
};

// Texts as the axis has them. Prices are in whole won; volumes in thousands, "1,234K", where the most that is
// in view is a million or more.
QString PriceText(double won);
QString VolumeText(double shares, double most);

}  // namespace jogeon::terminal::chart
