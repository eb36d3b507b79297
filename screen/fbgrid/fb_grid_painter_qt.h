// Draws a grid: the clip box only, in four passes, the focused row last.
//
// A value over the grid's data, its geometry and its looks, made for one paint event. It changes nothing. A
// cell runs from its left to left + width - 1; its last pixel line and column carry the grid line. What a
// repaint costs depends on the cells in the clip box, not on those of the grid.
#pragma once

#include <QPainter>
#include <QRect>

#include "screen/fbgrid/fb_cell_painter_qt.h"
#include "screen/fbgrid/fb_grid_data.h"
#include "screen/fbgrid/fb_grid_geometry.h"

namespace jogeon {

class FBGridPainter {
public:
    FBGridPainter(const FBGridData& grid, const FBGridGeometry& geometry, GridSize client,
                  const FBGridLook& look)
        : grid_(grid), geometry_(geometry), client_(client), look_(look) {}

    // Paints every pixel of the window that lies in `clip`, and no other.
    void OnDraw(QPainter& dc, const QRect& clip) const;

    // Draws one cell into `rect`, wherever it is in the grid, in its own colours: a header cell as a header.
    void DrawCell(QPainter& dc, int row, int col, const QRect& rect) const;

private:
    struct Lines;

    Lines RowsIn(const QRect& clip) const;
    Lines ColumnsIn(const QRect& clip) const;
    void EraseBkgnd(QPainter& dc, const QRect& clip, const Lines& rows, const Lines& columns) const;
    void DrawFixedCell(FBCellPainter& painter, int row, int col, const QRect& rect) const;
    void DrawBodyCell(FBCellPainter& painter, int row, int col, const QRect& rect) const;
    void DrawFocusedCell(FBCellPainter& painter, int row, int col, const QRect& rect) const;
    void DrawFocusedRow(FBCellPainter& painter, const Lines& rows, const Lines& columns) const;
    FBCellPainter::Button ButtonAt(int row, int col) const;

    const FBGridData& grid_;
    const FBGridGeometry& geometry_;
    const GridSize client_;
    const FBGridLook& look_;
};

}  // namespace jogeon
