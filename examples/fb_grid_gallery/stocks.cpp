#include "stocks.h"

#include "cp949.h"

namespace {

void SetText(CCell& cell, const std::string& text, CCell::Format format) {
    cell.text = text;
    cell.format = format;
}

void SetChange(CFBGrid& grid, int row, int col, double value) {
    grid.SetCellValue(row, col, value);
    if (value != 0) grid[row][col].textColour = value > 0 ? kRise : kFall;
}

}  // namespace

std::vector<Stock> Stocks() {
    return {{Cp949("가람전자"), "910010", 71'300, 900, 1.28, 12'345'678},
            {Cp949("나래화학"), "910020", 288'500, -4'500, -1.54, 215'430},
            {Cp949("다솜식품"), "910030", 9'870, 0, 0, 88'120},
            {Cp949("라온건설"), "910040", 15'250, 350, 2.35, 1'204'881},
            {Cp949("마루은행"), "910050", 43'050, -250, -0.58, 2'410'006},
            {Cp949("바른제약"), "910060", 131'000, 6'200, 4.97, 733'915},
            {Cp949("새솔통신"), "910070", 52'700, 100, 0.19, 501'277},
            {Cp949("아람조선"), "910080", 24'600, -1'150, -4.47, 3'998'402},
            {Cp949("자람철강"), "910090", 398'000, 2'500, 0.63, 154'020},
            {Cp949("차오름게임"), "910100", 6'480, -20, -0.31, 5'620'733},
            {Cp949("큰별항공"), "910110", 18'920, 510, 2.77, 947'561},
            {Cp949("한빛유통"), "910120", 86'400, 0, 0, 66'318}};
}

void AddStockColumns(CFBGrid& grid) {
    grid.AddColumn(Cp949("종목"), 120);
    grid.AddColumn(Cp949("코드"), 80);
    grid.AddColumn(Cp949("현재가"), 100);
    grid.AddColumn(Cp949("전일대비"), 90);
    grid.AddColumn(Cp949("등락률"), 80);
    grid.AddColumn(Cp949("거래량"), 120);
}

void SetStock(CFBGrid& grid, int row, int first, const Stock& stock) {
    SetText(grid[row][first], stock.name, CCell::kLeft);
    SetText(grid[row][first + 1], stock.code, CCell::kCentre);
    grid.SetCellValue(row, first + 2, stock.price);
    SetChange(grid, row, first + 3, stock.change);
    SetChange(grid, row, first + 4, stock.percent);
    grid[row][first + 4].state |= CCell::kTwoDecimals;
    grid[row][first + 4].text = "%";
    grid.SetCellValue(row, first + 5, stock.volume);
}
