// Check boxes in all their states, and push buttons.
#include "cp949.h"
#include "hands.h"
#include "pages.h"
#include "stocks.h"

namespace {

class ChecksPage : public GridPage {
public:
    ChecksPage()
        : GridPage("Check boxes and buttons",
                   "Double-click a check box, or go to it and press Enter: one click only moves the "
                   "focus. The grey ones stay as they are. A button is pressed when the mouse is "
                   "released on it; drag off it to change your mind.",
                   "checks_page.cpp") {
        CFBGrid& grid = Grid();
        grid.AddColumn(Cp949("선택"), 60);
        grid.AddColumn(Cp949("종목"), 160);
        grid.AddColumn(Cp949("주문"), 90);
        grid.AddColumn(Cp949("결과"), 240);
        const std::vector<Stock> stocks = Stocks();
        grid.SetRowCnt(1 + static_cast<int>(stocks.size()));
        for (int row = 1; row < grid.GetRowCnt(); ++row) {
            const bool mayBeBought = row % 4 != 0;
            // --- shown
            grid[row][0].state = CCell::kCheck;
            grid[row][0].check = mayBeBought ? CCell::kOff : CCell::kDisabled;

            grid[row][2].state = CCell::kButton;
            grid[row][2].text = Cp949("매수");
            // --- to here
            if (row % 3 == 1 && mayBeBought) grid[row][0].check = CCell::kOn;
            grid[row][1].text = stocks[static_cast<std::size_t>(row) - 1].name;
            grid[row][2].format = CCell::kCentre;
            for (int col : {1, 3}) grid[row][col].format = CCell::kLeft;
        }
    }

    void Pose() override {
        DoubleClick(Grid(), {2, 0});
        Grid().PressCell(5, 2);
        Grid().SetCellFocus(5, 0, true, true);
    }

protected:
    // --- shown
    void OnNotify(const FBGridNotify& notify) override {
        if (notify.code == FBGridNotify::kButtonPressed) Say(notify.row, "매수 주문");
        if (notify.code == FBGridNotify::kCheckToggled) {
            const int row = notify.grid.GetFocusedCellID().row;  // none is set
            const bool on = notify.grid[row][0].check == CCell::kOn;
            Say(row, on ? "선택했습니다" : "선택을 풀었습니다");
        }
    }
    // --- to here

private:
    void Say(int row, const char* text) {
        Grid()[row][3].text = Cp949(text);
        Grid().InvalidateCell(row, 3);
    }
};

}  // namespace

std::unique_ptr<GridPage> MakeChecksPage() {
    return std::make_unique<ChecksPage>();
}
