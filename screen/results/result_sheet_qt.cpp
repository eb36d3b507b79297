#include "screen/results/result_sheet_qt.h"

#include "screen/results/result_grid_view.h"
#include "screen/text/cp949_qt.h"
#include "screen/transactions/result_columns.h"

namespace jogeon {
namespace {

host::SheetFormat SheetFormatOf(CellFormat format) {
    switch (format) {
        case CellFormat::Price:
        case CellFormat::Change:
        case CellFormat::Integer:
            return host::SheetFormat::Integer;
        case CellFormat::Percent:
            return host::SheetFormat::Percent;
        case CellFormat::Decimal:
            return host::SheetFormat::Decimal;
        case CellFormat::Text:
        case CellFormat::Code:
            break;
    }
    return host::SheetFormat::Text;
}

std::vector<int> VisibleColumns(const ResultGrid& grid) {
    std::vector<int> columns;
    for (int column = 1; column <= grid.GetColCount(); ++column) {
        if (!grid.IsColHidden(column)) columns.push_back(column);
    }
    return columns;
}

}  // namespace

host::Sheet MakeResultSheet(const ResultGrid& grid, const std::vector<int>& rows) {
    host::Sheet sheet;
    sheet.name = "조건검색"_cp949;
    const std::vector<int> columns = VisibleColumns(grid);
    for (const int column : columns) {
        const GridColumn& layout = grid.Layout()[static_cast<std::size_t>(column) - 1];
        sheet.columns.push_back({layout.header, SheetFormatOf(layout.format)});
    }
    for (const int row : rows) {
        std::vector<std::string>& cells = sheet.rows.emplace_back();
        for (const int column : columns) cells.push_back(FromQString(grid.CopiedText(row, column)));
    }
    return sheet;
}

}  // namespace jogeon
