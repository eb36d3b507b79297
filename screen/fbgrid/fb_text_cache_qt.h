// The texts of a grid, laid out and ready to be drawn.
//
// Laying a text out takes most of a cell's painting, so what was drawn once is kept: the last 4096 texts,
// each in the width it had to fit in. A change of font empties it.
#pragma once

#include <QCache>
#include <QFont>
#include <QStaticText>
#include <QString>
#include <utility>

namespace jogeon {

class FBTextCache {
public:
    // Pixels between a text and the cell's sides. A text that fits only without them does without.
    static constexpr int kMargin = 4;

    // `text` as one line of at most `room` pixels. One that is longer ends in "…" and keeps the margins;
    // where not even that fits, it is given whole and the caller clips. Valid until the next call.
    const QStaticText& Line(const QString& text, const QFont& font, int room);

private:
    QFont font_;
    QCache<std::pair<QString, int>, QStaticText> lines_{4096};
};

}  // namespace jogeon
