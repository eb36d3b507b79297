// Draws a grid: the clip box only, in four passes, the focused row last.
//
// A value over the grid's data, its geometry and its looks, made for one paint event. It changes nothing. A
// cell runs from its left to left + width - 1; its last pixel line and column carry the grid line.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <vector>

#include "screen/fbgrid/fb_grid_data.h"
#include "screen/fbgrid/fb_grid_geometry.h"

namespace jogeon {

// What the window adds to the data when it is drawn.
struct FBGridLook {
    FBColour fixedCellColour = 0xD2D2D2;
    FBColour gridLineColour = 0x828282;
    QFont font;
    QPalette palette;
    const std::vector<QPixmap>* images = nullptr;  // not owned; null for none
    CCellID pressedButton;                         // the push button that is drawn pressed
};

class FBGridPainter {
public:
    FBGridPainter(const FBGridData& grid, const FBGridGeometry& geometry, GridSize client,
                  const FBGridLook& look)
        : grid_(grid), geometry_(geometry), client_(client), look_(look) {}

    void OnDraw(QPainter& dc, const QRect& clip) const;

    // Draws one cell into `rect`, whatever its place in the grid. A colour that is given takes the cell's own
    // background's place.
    void DrawCell(QPainter& dc, int row, int col, const QRect& rect) const;
    void DrawFixedCell(QPainter& dc, int row, int col, const QRect& rect) const;
    void DrawFocusedCell(QPainter& dc) const;
    void DrawFocusedRow(QPainter& dc) const;

private:
    const FBGridData& grid_;
    const FBGridGeometry& geometry_;
    const GridSize client_;
    const FBGridLook& look_;
};

}  // namespace jogeon
