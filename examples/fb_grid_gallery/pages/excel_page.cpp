// A grid that is saved as a worksheet.
#include <QFileDialog>

#include "cp949.h"
#include "pages.h"
#include "stocks.h"

namespace {

class ExcelPage : public GridPage {
public:
    ExcelPage()
        : GridPage("Excel files",
                   "Save the rows as an .xls file and open it: numbers are numbers there, and the hidden "
                   "column of codes is left out. No spreadsheet program is needed to write it.",
                   "excel_page.cpp") {
        CFBGrid& grid = Grid();
        AddStockColumns(grid);
        grid.SetColWidth(1, 0);
        const std::vector<Stock> stocks = Stocks();
        grid.SetRowCnt(1 + static_cast<int>(stocks.size()));
        for (int row = 1; row < grid.GetRowCnt(); ++row)
            SetStock(grid, row, 0, stocks[static_cast<std::size_t>(row) - 1]);
        AddButton("&Save all…", [this] { SaveAll(); });
        AddButton("Save &names and prices…", [this] { SaveSome(); });
    }

    void Pose() override { Grid().SetCellFocus(1, 0, true, true); }

private:
    // --- shown
    void SaveAll() {
        const QString filter = "Excel (*.xls)";
        const QString path = QFileDialog::getSaveFileName(this, {}, {}, filter);
        if (!path.isEmpty()) Grid().SaveToExcel(path.toStdU16String());
    }

    void SaveSome() {
        // The grid asks for the file; columns 0 to 2, and a line of ours below them.
        Grid().SaveToExcelPartially(Cp949("오늘의 시세"), 0, 2);
    }
    // --- to here
};

}  // namespace

std::unique_ptr<GridPage> MakeExcelPage() {
    return std::make_unique<ExcelPage>();
}
