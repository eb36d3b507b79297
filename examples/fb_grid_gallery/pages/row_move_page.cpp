// A row that is carried up and down with the arrow keys.
#include "hands.h"
#include "pages.h"
#include "stocks.h"

namespace {

class RowMovePage : public GridPage {
public:
    RowMovePage()
        : GridPage("Moving a row by keys",
                   "Go to a row and press Enter, or the button: it is picked up and the Up and Down keys "
                   "carry it. Enter puts it down, and so does a click. Rows 1 and 2 stay on top here: "
                   "the move has bounds.",
                   "row_move_page.cpp") {
        CFBGrid& grid = Grid();
        AddStockColumns(grid);
        const std::vector<Stock> stocks = Stocks();
        grid.SetRowCnt(1 + static_cast<int>(stocks.size()));
        for (int row = 1; row < grid.GetRowCnt(); ++row)
            SetStock(grid, row, 0, stocks[static_cast<std::size_t>(row) - 1]);
        AddButton("&Move this row", [this] { PickUp(); });
    }

    void Pose() override {
        Grid().SetCellFocus(5, 0, true, true);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Down}) PressKey(Grid(), key);
    }

protected:
    // --- shown
    void OnNotify(const FBGridNotify& notify) override {
        if (notify.code == FBGridNotify::kEnterKey) PickUp();
    }

    void PickUp() {
        if (Grid().GetFocusedCellID().row < 3) return;
        Grid().setFocus();  // a move ends when the grid loses the focus
        Grid().BeginMoveRow(3, Grid().GetRowCnt() - 1);
    }
    // --- to here
};

}  // namespace

std::unique_ptr<GridPage> MakeRowMovePage() {
    return std::make_unique<RowMovePage>();
}
