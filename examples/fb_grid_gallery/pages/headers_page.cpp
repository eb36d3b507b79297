// Header rows and columns, hidden ones, and rows of different heights.
#include <QCheckBox>
#include <algorithm>

#include "cp949.h"
#include "pages.h"
#include "stocks.h"

namespace {

constexpr int kCode = 1;
constexpr int kFirstDay = 6;
constexpr int kDays = 8;
constexpr int kHeaders = 2;

class HeadersPage : public GridPage {
public:
    HeadersPage()
        : GridPage("Headers and sizes",
                   "Two header rows and the column of names stay where they are while the rest scrolls. "
                   "Press a header: the page sorts its rows by that column. A width or a height of 0 "
                   "hides; Left and Right step over a hidden column.",
                   "headers_page.cpp"),
          stocks_(Stocks()) {
        CFBGrid& grid = Grid();
        AddStockColumns(grid);
        for (int day = 1; day <= kDays; ++day) grid.AddColumn(Cp949(std::to_string(day) + "일 전"), 90);
        // --- shown
        grid.SetRowCnt(2 + 12);
        grid.SetFixedRowCnt(2);  // AddColumn has made one header row; here is another
        grid.SetFixedColCnt(1);
        grid.SetColWidth(1, 0);  // hidden
        grid.SetRowHeight(4, 2 * grid.GetRowHeight(4));
        // --- to here
        const char* units[] = {"", "", "원", "원", "%", "주"};
        for (int col = 0; col < grid.GetColCnt(); ++col) {
            grid[1][col].text = Cp949(col < kFirstDay ? units[col] : "원");
            grid[1][col].format = CCell::kCentre;
        }
        Fill();
        auto* shown = new QCheckBox("Show the &hidden column");
        connect(shown, &QCheckBox::toggled, this,
                [this](bool on) { Grid().SetColWidth(kCode, on ? 80 : 0); });
        AddControl(*shown);
    }

    void Pose() override {
        Grid().PressCell(0, 4);
        Grid().SetCellFocus(4, 2, true, true);
    }

protected:
    // --- shown
    void OnNotify(const FBGridNotify& notify) override {
        if (notify.code == FBGridNotify::kHeaderPressed) Sort(notify.col);
    }
    // --- to here

private:
    void Fill() {
        CFBGrid& grid = Grid();
        for (int row = kHeaders; row < grid.GetRowCnt(); ++row) {
            const Stock& stock = stocks_[static_cast<std::size_t>(row - kHeaders)];
            for (int col = 0; col < kFirstDay; ++col) grid.SetCell(row, col, CCell());
            SetStock(grid, row, 0, stock);
            for (int day = 0; day < kDays; ++day)
                grid.SetCellValue(row, kFirstDay + day, stock.price - stock.change * (day + 1));
        }
        grid.viewport()->update();
    }

    // The texts upwards, the numbers from the greatest down.
    void Sort(int column) {
        std::stable_sort(stocks_.begin(), stocks_.end(), [column](const Stock& a, const Stock& b) {
            switch (column) {
                case 0:
                    return a.name < b.name;
                case kCode:
                    return a.code < b.code;
                case 3:
                    return a.change > b.change;
                case 4:
                    return a.percent > b.percent;
                case 5:
                    return a.volume > b.volume;
                default:
                    return a.price > b.price;
            }
        });
        Fill();
    }

    std::vector<Stock> stocks_;
};

}  // namespace

std::unique_ptr<GridPage> MakeHeadersPage() {
    return std::make_unique<HeadersPage>();
}
