#include "screen/fbgrid/fb_grid_sheet.h"

#include <algorithm>

#include "screen/files/xls_writer.h"

namespace jogeon {
namespace {

// The columns to save, both ends included.
struct ColumnSpan {
    int first;
    int last;
};

// A format that isn't one of these leaves the alignment of the cell before.
void SetAlignment(XlsWriter& sheet, std::uint32_t format) {
    switch (format) {
        case CCell::kLeft:
            sheet.SetAlignment(XlsWriter::kLeft);
            break;
        case CCell::kRight:
            sheet.SetAlignment(XlsWriter::kRight);
            break;
        case CCell::kCentre:
            sheet.SetAlignment(XlsWriter::kCentre);
            break;
        default:
            break;
    }
}

void SetBorder(XlsWriter& sheet, const FBGridData& grid, int row) {
    const bool last = row == grid.GetRowCnt() - 1;
    if (row < grid.GetFixedRowCnt())
        sheet.SetBorder(XlsWriter::kAllSides);
    else
        sheet.SetBorder(last ? XlsWriter::kBottom : XlsWriter::kNoBorder);
}

void WriteCell(XlsWriter& sheet, int row, int sheetColumn, const CCell& cell) {
    if ((cell.state & CCell::kNumeric) != 0)
        sheet.WriteNumber(row, sheetColumn, cell.check != CCell::kOff ? -cell.value : cell.value);
    else
        sheet.WriteLabel(row, sheetColumn, cell.text);
}

void WriteRow(XlsWriter& sheet, const FBGridData& grid, int row, ColumnSpan columns) {
    SetBorder(sheet, grid, row);
    int sheetColumn = columns.first;
    for (int col = columns.first; col <= columns.last; ++col) {
        const CCell& cell = grid.GetCell(row, col);
        SetAlignment(sheet, cell.format);
        if (grid.GetColWidth(col) != 0) WriteCell(sheet, row, sheetColumn++, cell);
    }
}

void WriteRows(XlsWriter& sheet, const FBGridData& grid, ColumnSpan columns) {
    for (int row = 0; row < grid.GetRowCnt(); ++row) WriteRow(sheet, grid, row, columns);
}

}  // namespace

bool SaveSheet(const FBGridData& grid, const std::filesystem::path& path) {
    XlsWriter sheet;
    if (sheet.Open(path) == 0) return false;
    WriteRows(sheet, grid, {0, grid.GetColCnt() - 1});
    return sheet.Close();
}

bool SaveSheetPartially(const FBGridData& grid, const std::filesystem::path& path, std::string_view title,
                        int firstCol, int lastCol) {
    XlsWriter sheet;
    if (sheet.Open(path) == 0) return false;
    const ColumnSpan columns{std::max(firstCol, 0), std::min(lastCol, grid.GetColCnt() - 1)};
    WriteRows(sheet, grid, columns);
    sheet.SetAlignment(XlsWriter::kLeft);
    sheet.WriteLabel(grid.GetRowCnt() + 1, columns.first, title);
    return sheet.Close();
}

}  // namespace jogeon
