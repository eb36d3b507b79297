#include "screen/fbgrid/fb_grid_geometry.h"

#include <algorithm>
#include <climits>

namespace jogeon {
namespace {

// Rows or columns on a window, with a scroll position that the window can have: headers from its edge on, and
// behind them the body from its first shown index on. All questions of the geometry are asked of one of these
// at a time.
class Band {
public:
    Band(const FBAxis& axis, int fixed, int client, int scroll)
        : axis_(axis),
          fixed_(std::clamp(fixed, 0, axis.Count())),
          headers_(axis.Offset(fixed_)),
          client_(std::max(client, 0)),
          page_(std::max<std::int64_t>(client_ - headers_, 0)),
          scroll_(std::clamp(scroll, 0, Range().maximum)),
          first_(fixed_),
          start_(headers_) {
        if (scroll_ > 0) FindFirstShown();
    }

    int First() const { return first_; }

    // The last body index on the window; First() - 1 if none is.
    int Last() const {
        if (page_ == 0 || start_ >= axis_.Total()) return first_ - 1;
        return axis_.IndexAt(std::min(start_ + page_, axis_.Total()) - 1);
    }

    // -1 for a position off the window or behind the last index, or among headers that don't count.
    int IndexAt(int position, bool allowFixed) const {
        if (position < 0 || position >= client_ || (position < headers_ && !allowFixed)) return -1;
        const int index = axis_.IndexAt(position < headers_ ? position : start_ + position - headers_);
        return index < axis_.Count() ? index : -1;
    }

    // The window's pixel that an index begins at, if that is on the window.
    std::optional<int> Begin(int index) const {
        const bool scrolledOut = index >= fixed_ && index < first_;
        if (index < 0 || index >= axis_.Count() || scrolledOut) return std::nullopt;
        const std::int64_t place = Place(index);
        return place < client_ ? std::optional(static_cast<int>(place)) : std::nullopt;
    }

    // The pixel behind the last index on the window, which may lie beyond the window's edge; 0 if none is.
    int End() const {
        const std::int64_t shown = std::min<std::int64_t>(client_, headers_ + axis_.Total() - start_);
        const int index = IndexAt(static_cast<int>(shown) - 1, true);
        return index < 0 ? 0 : static_cast<int>(Place(index) + axis_.Size(index));
    }

    ScrollRange Range() const {
        const std::int64_t body = axis_.Total() - headers_;
        if (body <= page_) return {false, 0, static_cast<int>(page_)};
        return {true, static_cast<int>(std::min<std::int64_t>(body - page_, INT_MAX)),
                static_cast<int>(page_)};
    }

    // `forward` is the size that a line step down or to the right takes.
    int After(ScrollStep step, int forward) const {
        const std::int64_t maximum = Range().maximum;
        const auto at = [&](std::int64_t position) {
            return static_cast<int>(std::clamp<std::int64_t>(position, 0, maximum));
        };
        // Within a long last index the position lies behind the start of what is shown.
        const std::int64_t top = std::min<std::int64_t>(scroll_, start_ - headers_);
        switch (step) {
            case ScrollStep::LineUp:
                return at(top - SizeAbove());
            case ScrollStep::LineDown:
                return at(std::int64_t{scroll_} + forward);
            // A page back is shorter than one forward, by the headers. It is a line at least, or a window
            // that is hardly higher than twice its headers could never be paged back.
            case ScrollStep::PageUp:
                return at(top - std::max(page_ - headers_, SizeAbove()));
            case ScrollStep::PageDown:
                return at(scroll_ + page_);
            case ScrollStep::Top:
                return 0;
            case ScrollStep::Bottom:
                return at(maximum);
        }
        return scroll_;
    }

    // The size of the first index from First() on that has one; 0 if none has.
    int FirstWithSize() const { return axis_.Size(axis_.IndexAt(start_)); }

private:
    std::int64_t Place(int index) const {
        return axis_.Offset(index) - (index < fixed_ ? 0 : start_ - headers_);
    }

    void FindFirstShown() {
        first_ = axis_.IndexAt(headers_ + scroll_ - 1) + 1;
        start_ = axis_.Offset(first_);
        if (start_ < axis_.Total()) return;
        // Where the last index is longer than the page, the scroll position may lie within it: it is shown.
        first_ = axis_.IndexAt(axis_.Total() - 1);
        start_ = axis_.Offset(first_);
    }

    // The size of the nearest body index before First() that has one; 0 if none has.
    std::int64_t SizeAbove() const { return start_ > headers_ ? axis_.Size(axis_.IndexAt(start_ - 1)) : 0; }

    const FBAxis& axis_;
    int fixed_;
    std::int64_t headers_;
    int client_;
    std::int64_t page_;
    int scroll_;
    int first_;
    std::int64_t start_;
};

Band RowBand(const FBGridData& grid, GridSize client, int scroll) {
    return Band(grid.Rows(), grid.GetFixedRowCnt(), client.height, scroll);
}

Band ColumnBand(const FBGridData& grid, GridSize client, int scroll) {
    return Band(grid.Columns(), grid.GetFixedColCnt(), client.width, scroll);
}

std::optional<GridRect> RectOf(const FBGridData& grid, const Band& rows, const Band& columns, CCellID cell) {
    const std::optional<int> top = rows.Begin(cell.row);
    const std::optional<int> left = columns.Begin(cell.col);
    if (!top || !left) return std::nullopt;
    return GridRect{*left, *top, grid.GetColWidth(cell.col), grid.GetRowHeight(cell.row)};
}

}  // namespace

CCellID FBGridGeometry::GetTopleftNonFixedCell() const {
    return {RowBand(grid_, client_, scrollY_).First(), ColumnBand(grid_, client_, scrollX_).First()};
}

CCellRange FBGridGeometry::GetVisibleRange() const {
    const Band rows = RowBand(grid_, client_, scrollY_);
    const Band columns = ColumnBand(grid_, client_, scrollX_);
    return {rows.First(), columns.First(), rows.Last(), columns.Last()};
}

CCellID FBGridGeometry::GetCellFromPt(GridPoint point, bool allowFixed) const {
    return {RowBand(grid_, client_, scrollY_).IndexAt(point.y, allowFixed),
            ColumnBand(grid_, client_, scrollX_).IndexAt(point.x, allowFixed)};
}

int FBGridGeometry::HitTest(GridPoint point, _tagGridHitTestInfo& info) const {
    info = {};
    const Band rows = RowBand(grid_, client_, scrollY_);
    const Band columns = ColumnBand(grid_, client_, scrollX_);
    const CCellID cell{rows.IndexAt(point.y, true), columns.IndexAt(point.x, true)};
    const std::optional<GridRect> rect = RectOf(grid_, rows, columns, cell);
    if (!rect) return 0;
    info = {cell.row, cell.col, *rect, 1, grid_.IsNonHeaderCell(cell.row, cell.col) ? 1 : 0};
    return 1;
}

std::optional<GridRect> FBGridGeometry::GetCellRect(int row, int col) const {
    return RectOf(grid_, RowBand(grid_, client_, scrollY_), ColumnBand(grid_, client_, scrollX_), {row, col});
}

std::optional<GridRect> FBGridGeometry::GetRowRect(int row) const {
    const std::optional<int> top = RowBand(grid_, client_, scrollY_).Begin(row);
    const int width = ColumnBand(grid_, client_, scrollX_).End();
    if (!top || width == 0) return std::nullopt;
    return GridRect{0, *top, width, grid_.GetRowHeight(row)};
}

ScrollRange FBGridGeometry::VerticalRange() const {
    return RowBand(grid_, client_, scrollY_).Range();
}

ScrollRange FBGridGeometry::HorizontalRange() const {
    return ColumnBand(grid_, client_, scrollX_).Range();
}

// A hidden row at the top stops a step down, while hidden columns are stepped over.
int FBGridGeometry::AfterVerticalStep(ScrollStep step) const {
    const Band rows = RowBand(grid_, client_, scrollY_);
    return rows.After(step, grid_.GetRowHeight(rows.First()));
}

int FBGridGeometry::AfterHorizontalStep(ScrollStep step) const {
    const Band columns = ColumnBand(grid_, client_, scrollX_);
    return columns.After(step, columns.FirstWithSize());
}

}  // namespace jogeon
