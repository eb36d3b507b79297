// Scrolls a grid, and knows where its cells stand.
//
// The scroll bars are the grid's own. A step takes the positions of the geometry, not those of the bars.
#pragma once

#include <QObject>
#include <QSize>

#include "screen/fbgrid/fb_grid_geometry.h"

class CFBGrid;
class QScrollBar;

namespace jogeon {

struct FBGridParts;

class FBGridScroll : public QObject {
public:
    FBGridScroll(CFBGrid& grid, FBGridParts& parts);

    QScrollBar& Bar(Qt::Orientation bar) const;
    FBGridGeometry Geometry() const;
    FBGridGeometry GeometryOf(QSize client) const;  // with the positions as they are

    void Step(Qt::Orientation bar, ScrollStep step);
    void SetPosition(Qt::Orientation bar, int pos, bool redraw);
    int Position(Qt::Orientation bar, bool track) const;
    void OnScrolled(int dx, int dy);

    bool eventFilter(QObject* bar, QEvent* event) override;

private:
    void OnAction(Qt::Orientation bar, int action);
    int After(Qt::Orientation bar, ScrollStep step) const;

    CFBGrid& grid_;
    FBGridParts& parts_;
    bool repaintOnScroll_ = true;
};

}  // namespace jogeon
