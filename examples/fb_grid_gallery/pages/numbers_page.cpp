// Numbers: with commas, with two decimals, with a unit behind.
#include "cp949.h"
#include "pages.h"

namespace {

class NumbersPage : public GridPage {
public:
    NumbersPage()
        : GridPage("Numbers",
                   "A numeric cell keeps a double and writes it itself: a whole number with commas, any "
                   "other one with two decimals. Its text, if it has one, stands behind as the unit.",
                   "numbers_page.cpp") {
        CFBGrid& grid = Grid();
        grid.AddColumn(Cp949("value"), 140);
        grid.AddColumn(Cp949("숫자"), 140);
        grid.AddColumn(Cp949("단위"), 140);
        grid.AddColumn(Cp949("소수 두 자리"), 140);
        grid.AddColumn(Cp949("왼쪽 맞춤"), 140);
        const double values[] = {0,    7,      1234,   -1000, 1'234'567, 98'765'432'100.0,
                                 0.25, 1234.5, -0.125, 99.999};
        grid.SetRowCnt(1 + static_cast<int>(std::size(values)));
        for (int row = 1; row < grid.GetRowCnt(); ++row) {
            const double value = values[row - 1];
            grid[row][0].text = QString::number(value, 'g', 15).toStdString();
            // --- shown
            grid.SetCellValue(row, 1, value);

            grid.SetCellValue(row, 2, value);
            grid[row][2].text = Cp949("원");

            grid.SetCellValue(row, 3, value);
            grid[row][3].state |= CCell::kTwoDecimals;

            grid.SetCellValue(row, 4, value);    // this sets the format too ...
            grid[row][4].format = CCell::kLeft;  // ... so another one comes after it
            // --- to here
        }
    }

    void Pose() override { Grid().SetCellFocus(5, 1, true, true); }
};

}  // namespace

std::unique_ptr<GridPage> MakeNumbersPage() {
    return std::make_unique<NumbersPage>();
}
