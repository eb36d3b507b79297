// The rows that several pages show: a few made-up stocks.
#pragma once

#include <string>
#include <vector>

#include <screen/fbgrid/fb_grid_widget.h>

struct Stock {
    std::string name;  // CP949, as the cells take it
    std::string code;
    double price;    // won
    double change;   // won, against the day before
    double percent;  // the same in percent
    double volume;   // shares
};

std::vector<Stock> Stocks();

// Text colours of a rise and of a fall, readable on light and on dark: 0x00bbggrr.
inline constexpr FBColour kRise = 0x4545e0;
inline constexpr FBColour kFall = 0xe07c3a;

// The six columns of a stock, from column `first` on: name, code, price, change, percent, volume.
void AddStockColumns(CFBGrid& grid);
void SetStock(CFBGrid& grid, int row, int first, const Stock& stock);
