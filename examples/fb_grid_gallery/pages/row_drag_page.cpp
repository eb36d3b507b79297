// A row that is dragged to another place with the mouse.
#include "cp949.h"
#include "hands.h"
#include "pages.h"
#include "stocks.h"

namespace {

class RowDragPage : public GridPage {
public:
    RowDragPage()
        : GridPage("Dragging a row",
                   "Take a row by the handle in its first column and drop it on another row. The grid "
                   "only says from where to where; the page moves the cells.",
                   "row_drag_page.cpp") {
        CFBGrid& grid = Grid();
        grid.AddColumn("", 36);
        AddStockColumns(grid);
        const std::vector<Stock> stocks = Stocks();
        grid.SetRowCnt(1 + static_cast<int>(stocks.size()));
        for (int row = 1; row < grid.GetRowCnt(); ++row) {
            grid[row][0].text = Cp949("≡");
            grid[row][0].format = CCell::kCentre;
            SetStock(grid, row, 1, stocks[static_cast<std::size_t>(row) - 1]);
        }
        // --- shown
        grid.SetDragAndDropColumn(0);  // its cells are the handles
        // --- to here
    }

    void Pose() override { Drag(Grid(), {6, 0}, {2, 1}); }

protected:
    // --- shown
    void OnNotify(const FBGridNotify& notify) override {
        if (notify.code != FBGridNotify::kRowDropped) return;
        MoveRow(notify.col, notify.row);  // from, to
        notify.grid.SetCellFocus(notify.row, 0, true, true);
    }

    void MoveRow(int from, int to) {
        CFBGrid& grid = Grid();
        const int step = from < to ? 1 : -1;
        for (int row = from; row != to; row += step) {
            for (int col = 0; col < grid.GetColCnt(); ++col) {
                grid.SwapCellInfo(row, col, row + step, col);
            }
        }
        grid.viewport()->update();
    }
    // --- to here
};

}  // namespace

std::unique_ptr<GridPage> MakeRowDragPage() {
    return std::make_unique<RowDragPage>();
}
