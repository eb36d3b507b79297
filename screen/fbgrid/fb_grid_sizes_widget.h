// Follows the sizes of a grid's rows, its columns and its window: fits the scroll bars to them, and ends what
// the user was doing to cells that have gone.
#pragma once

#include <QSize>

#include "screen/fbgrid/fb_grid_geometry.h"

class CFBGrid;

namespace jogeon {

struct FBGridParts;

class FBGridSizes {
public:
    FBGridSizes(CFBGrid& grid, FBGridParts& parts) : grid_(grid), parts_(parts) {}

    void FixBars(bool horizontal, bool vertical);
    void FitBars();

    void OnWindowResized();
    void OnSizesChanged(bool redraw);

private:
    QSize ClientBesideBars() const;
    void FitBar(Qt::Orientation bar, const ScrollRange& range);

    CFBGrid& grid_;
    FBGridParts& parts_;
    int rowsBefore_ = 0;  // the counts when they were last looked at
    int columnsBefore_ = 0;
    bool fittingBars_ = false;
};

}  // namespace jogeon
