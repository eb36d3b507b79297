// Controls that open over a cell: an editor for a text or a number, a list, a list that can be typed in.
#include "cp949.h"
#include "pages.h"
#include "stocks.h"

namespace {

class EditingPage : public GridPage {
public:
    EditingPage()
        : GridPage("Editing in place",
                   "Click a text or a number that has the focus already, or press Enter on it, and type; "
                   "Enter, Tab and Escape all keep what you typed. The lists open on the first click. "
                   "Left and Right leave a list for the next cell.",
                   "editing_page.cpp") {
        CFBGrid& grid = Grid();
        grid.AddColumn(Cp949("종목"), 140);
        grid.AddColumn(Cp949("메모"), 180);
        grid.AddColumn(Cp949("수량"), 110);
        grid.AddColumn(Cp949("구분"), 110);
        grid.AddColumn(Cp949("호가"), 130);
        // --- shown
        auto kinds = std::make_unique<CStringArray>();
        *kinds = {Cp949("매수"), Cp949("매도"), Cp949("정정"), Cp949("취소")};
        grid.AddDropDownItem(std::move(kinds));  // list 0, the grid's from here
        // --- to here
        auto prices = std::make_unique<CStringArray>();
        *prices = {Cp949("지정가"), Cp949("시장가"), Cp949("최유리")};
        grid.AddDropDownItem(std::move(prices));
        const std::vector<Stock> stocks = Stocks();
        grid.SetRowCnt(1 + static_cast<int>(stocks.size()));
        for (int row = 1; row < grid.GetRowCnt(); ++row)
            FillRow(row, stocks[static_cast<std::size_t>(row) - 1]);
    }

    void Pose() override {
        Grid().SetCellFocus(4, 1, true, true);
        Grid().SetCellFocus(4, 1, true, true);
    }

private:
    void FillRow(int row, const Stock& stock) {
        CFBGrid& grid = Grid();
        grid[row][0].text = stock.name;
        grid[row][1].text = Cp949(row % 2 == 1 ? "관심" : "오전에 확인");
        // --- shown
        grid[row][1].state = CCell::kEdit;

        grid.SetCellValue(row, 2, 10.0 * row);
        grid[row][2].state |= CCell::kEdit;  // a number, edited as one
        grid[row][2].text = Cp949("주");

        grid[row][3].state = CCell::kList;
        grid[row][3].listIndex = 0;  // which list
        grid[row][3].check = 1;      // which of its texts
        grid[row][3].text = Cp949("매도");

        grid[row][4].state = CCell::kFreeList;  // can be typed in as well
        grid[row][4].listIndex = 1;
        // --- to here
        grid[row][4].text = Cp949("지정가");
        for (int col : {0, 1, 3, 4}) grid[row][col].format = CCell::kLeft;
    }
};

}  // namespace

std::unique_ptr<GridPage> MakeEditingPage() {
    return std::make_unique<EditingPage>();
}
