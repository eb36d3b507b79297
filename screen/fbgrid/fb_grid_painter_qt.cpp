#include "screen/fbgrid/fb_grid_painter_qt.h"

#include <algorithm>
#include <vector>

#include "screen/fbgrid/fb_colour_qt.h"
#include "screen/palette/colors_qt.h"

namespace jogeon {
namespace {

// A row or a column: its index and its pixels on the window.
struct GridLine {
    int index;
    int start;
    int size;
};

// The lines that have pixels from `from` to before `to` on the window, when the axis's start lies at
// `origin`.
std::vector<GridLine> LinesBetween(const FBAxis& axis, std::int64_t origin, std::int64_t from,
                                   std::int64_t to) {
    std::vector<GridLine> lines;
    std::int64_t at = from - origin;
    for (int i = axis.IndexAt(at); i < axis.Count() && origin + axis.Offset(i) < to; i = axis.IndexAt(at)) {
        lines.push_back({i, static_cast<int>(origin + axis.Offset(i)), axis.Size(i)});
        at = axis.Offset(i) + axis.Size(i);  // no line of size 0 is found there, however many follow
    }
    return lines;
}

template <typename Draw>
void ForEachCell(const std::vector<GridLine>& rows, const std::vector<GridLine>& columns, Draw draw) {
    for (const GridLine& row : rows) {
        for (const GridLine& column : columns) {
            draw(row.index, column.index, QRect(column.start, row.start, column.size, row.size));
        }
    }
}

}  // namespace

// What the clip box holds of the rows or of the columns, and the pixel behind the last one of all.
struct FBGridPainter::Lines {
    Lines(const FBAxis& axis, int fixedCount, int firstBody, int clipStart, int clipEnd) {
        const std::int64_t headers = axis.Offset(fixedCount);
        const std::int64_t origin = headers - axis.Offset(firstBody);
        fixed = LinesBetween(axis, 0, clipStart, std::min<std::int64_t>(clipEnd, headers));
        body = LinesBetween(axis, origin, std::max<std::int64_t>(clipStart, headers), clipEnd);
        end = origin + axis.Total();
    }

    std::vector<GridLine> fixed;
    std::vector<GridLine> body;
    std::int64_t end;
};

FBGridPainter::Lines FBGridPainter::RowsIn(const QRect& clip) const {
    return Lines(grid_.Rows(), grid_.GetFixedRowCnt(), geometry_.GetTopleftNonFixedCell().row, clip.top(),
                 clip.bottom() + 1);
}

FBGridPainter::Lines FBGridPainter::ColumnsIn(const QRect& clip) const {
    return Lines(grid_.Columns(), grid_.GetFixedColCnt(), geometry_.GetTopleftNonFixedCell().col, clip.left(),
                 clip.right() + 1);
}

void FBGridPainter::OnDraw(QPainter& dc, const QRect& clip) const {
    const QRect box = clip & QRect(0, 0, client_.width, client_.height);
    if (box.isEmpty()) return;
    dc.save();
    dc.setClipRect(box, Qt::IntersectClip);
    const Lines rows = RowsIn(box);
    const Lines columns = ColumnsIn(box);
    EraseBkgnd(dc, box, rows, columns);
    {
        FBCellPainter painter(dc, look_);
        const auto drawFixed = [&](int row, int col, const QRect& rect) {
            DrawFixedCell(painter, row, col, rect);
        };
        ForEachCell(rows.fixed, columns.fixed, drawFixed);
        ForEachCell(rows.body, columns.fixed, drawFixed);
        ForEachCell(rows.fixed, columns.body, drawFixed);
        ForEachCell(rows.body, columns.body,
                    [&](int row, int col, const QRect& rect) { DrawBodyCell(painter, row, col, rect); });
        DrawFocusedRow(painter, rows, columns);
    }
    dc.restore();
}

void FBGridPainter::DrawCell(QPainter& dc, int row, int col, const QRect& rect) const {
    FBCellPainter painter(dc, look_);
    DrawFixedCell(painter, row, col, rect);
}

void FBGridPainter::EraseBkgnd(QPainter& dc, const QRect& clip, const Lines& rows,
                               const Lines& columns) const {
    const QColor back = ToQColor(fbcolour::kWindow, look_.palette);
    const int right = static_cast<int>(std::min<std::int64_t>(columns.end, client_.width));
    const int bottom = static_cast<int>(std::min<std::int64_t>(rows.end, client_.height));
    dc.fillRect(clip & QRect(right, 0, client_.width - right, client_.height), back);
    dc.fillRect(clip & QRect(0, bottom, right, client_.height - bottom), back);
}

// A cell in a header column of a body row is no header.
void FBGridPainter::DrawFixedCell(FBCellPainter& painter, int row, int col, const QRect& rect) const {
    if (grid_.IsNonHeaderCell(row, col)) {
        painter.DrawHeader(grid_.GetCell(row, col), rect);
    } else {
        DrawBodyCell(painter, row, col, rect);
    }
}

void FBGridPainter::DrawBodyCell(FBCellPainter& painter, int row, int col, const QRect& rect) const {
    const CCell& cell = grid_.GetCell(row, col);
    painter.DrawCell(cell, rect, ToQColor(cell.backColour, look_.palette), ButtonAt(row, col));
}

void FBGridPainter::DrawFocusedCell(FBCellPainter& painter, int row, int col, const QRect& rect) const {
    painter.DrawCell(grid_.GetCell(row, col), rect, ToQColor(look_.ThemeColour(Color::FBFocusedRow)),
                     ButtonAt(row, col));
}

// The whole row is marked, whatever the column of the focused cell.
void FBGridPainter::DrawFocusedRow(FBCellPainter& painter, const Lines& rows, const Lines& columns) const {
    const CCellID focused = grid_.GetFocusedCellID();
    if (!grid_.IsValid(focused.row, focused.col)) return;
    const auto drawFocused = [&](int row, int col, const QRect& rect) {
        DrawFocusedCell(painter, row, col, rect);
    };
    for (const std::vector<GridLine>* shown : {&rows.fixed, &rows.body}) {
        const auto row = std::find_if(shown->begin(), shown->end(),
                                      [&](const GridLine& line) { return line.index == focused.row; });
        if (row == shown->end()) continue;
        ForEachCell({*row}, columns.fixed, drawFocused);
        ForEachCell({*row}, columns.body, drawFocused);
    }
}

FBCellPainter::Button FBGridPainter::ButtonAt(int row, int col) const {
    return look_.pressedButton == CCellID{row, col} ? FBCellPainter::Button::Pressed
                                                    : FBCellPainter::Button::Raised;
}

}  // namespace jogeon
