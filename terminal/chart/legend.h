// What a chart says of one bar in words and numbers: its quote, and the value of each line.
//
// Every value has a place as wide as the widest that the stock needs, so that nothing moves while the pointer
// does.
#pragma once

#include <QColor>
#include <QPainter>
#include <vector>

#include "terminal/chart/scene.h"

namespace jogeon::terminal::chart {

struct LegendEntry {
    // How wide its value can be.
    enum class Kind { Date, Price, Percent, Volume, Bands, Lower, Note };

    Kind kind;
    QString label;
    QString value;
    QColor labelColor;
    QColor valueColor;
    bool newRow = false;
};

// Of the bars and the lines among them, in the order in which they are read; and of the lower indicator.
std::vector<LegendEntry> EntriesOf(const Content& content, const Marks& marks, int bar);
std::vector<LegendEntry> LowerEntriesOf(const Content& content, int bar);

class Legend {
public:
    Legend() = default;

    // Finds a place for each entry in `width` pixels.
    Legend(const QFontMetrics& metrics, const Content& content, const Marks& marks, int width);

    int Height() const { return height_; }
    int LowerHeight() const { return lowerHeight_; }  // 0 without a lower indicator

    void Paint(QPainter& painter, const Scene& scene, int bar) const;

private:
    std::vector<QPoint> places_;  // left ends of the entries' baselines
    std::vector<QPoint> lowerPlaces_;
    int height_ = 0;
    int lowerHeight_ = 0;
};

}  // namespace jogeon::terminal::chart
