// Where the cells of a grid stand on its window, and what a scroll step does.
//
// A value over the grid's data, a window size and two scroll positions, all in pixels; it changes nothing and
// is made anew for each event. Header rows and columns don't scroll. The first body row shown is the first
// one that starts at or behind the scroll position, so that the window always starts with a whole row;
// columns likewise.
#pragma once

#include <optional>

#include "screen/fbgrid/fb_export.h"
#include "screen/fbgrid/fb_grid_data.h"

namespace jogeon {

struct GridPoint {
    int x = 0;
    int y = 0;
};

struct GridRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool Contains(GridPoint point) const {
        return point.x >= left && point.x < left + width && point.y >= top && point.y < top + height;
    }
    bool operator==(const GridRect&) const = default;
};

struct GridSize {
    int width = 0;
    int height = 0;
};

struct _tagGridHitTestInfo {
    int row = 0;
    int col = 0;
    GridRect rect;
    int cell = 0;    // 1 when a cell was found
    int header = 0;  // 1 for a row of the fixed ones
};

// The numbers of one scroll bar. Positions run from 0 to `maximum`.
struct ScrollRange {
    bool needed = false;  // the body is longer than what the window shows of it
    int maximum = 0;
    int page = 0;
};

enum class ScrollStep { LineUp, LineDown, PageUp, PageDown, Top, Bottom };

class FB_GRID_API FBGridGeometry {
public:
    FBGridGeometry(const FBGridData& grid, GridSize client, int scrollX, int scrollY)
        : grid_(grid), client_(client), scrollX_(scrollX), scrollY_(scrollY) {}

    // The first body cell shown: its row is the last one where no row starts behind the scroll position, and
    // the number of header rows where there is no body; columns likewise.
    CCellID GetTopleftNonFixedCell() const;

    // The body cells that are on the window, cells that are cut by its edge too. With no such row the block
    // is empty, but its columns still are those on the window, which the headers need; likewise with no
    // column.
    CCellRange GetVisibleRange() const;

    // The cell under a point; -1 for a coordinate off the window or beyond the last row or column, and in the
    // fixed area unless that is allowed.
    CCellID GetCellFromPt(GridPoint point, bool allowFixed) const;

    // 1 with the fields filled, or 0 with all of them 0.
    int HitTest(GridPoint point, _tagGridHitTestInfo& info) const;

    // The rectangle of a cell that is on the window or begins on it; none for a cell scrolled out or not
    // there.
    std::optional<GridRect> GetCellRect(int row, int col) const;

    // From the row's first shown cell to its last one.
    std::optional<GridRect> GetRowRect(int row) const;

    ScrollRange VerticalRange() const;
    ScrollRange HorizontalRange() const;

    // The position that a step leads to; the present one if the step isn't possible.
    int AfterVerticalStep(ScrollStep step) const;
    int AfterHorizontalStep(ScrollStep step) const;

private:
    const FBGridData& grid_;
    GridSize client_;
    int scrollX_;
    int scrollY_;
};

}  // namespace jogeon
