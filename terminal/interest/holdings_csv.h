// Reads an account's holdings from the table that a broker's program or a spreadsheet writes.
//
// A file in CP949 or UTF-8, gzipped or not, with commas, semicolons or tabs between its fields. Its header is
// one of the first lines: it names columns for the stock's code or name and for the quantity, and may name
// one for the average price, in the words that Korean brokers use or in English. What stands above it, and
// other columns, are left alone.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "terminal/stocks/stock_index.h"

namespace jogeon::terminal {

enum class LineFault {
    Unreadable,    // a quote isn't closed, or there are more or fewer fields than the header has
    NoStock,       // neither code nor name
    UnknownStock,  // the market has none with that code or name
    BadQuantity,   // no whole number from 1 on
    BadPrice,      // no number from 0 on
};

struct RefusedLine {
    long number = 0;  // 1 for the file's first line
    LineFault fault{};
    std::string text;  // UTF-8: the field, or what there is of the line
};

enum class FileFault {
    None,
    Unreadable,
    Utf16,  // what spreadsheets call Unicode text
    NoHeader,
};

struct HoldingsFile {
    FileFault fault = FileFault::None;
    std::string detail;  // of an unreadable file, in one line
    std::vector<service::Holding> holdings;
    std::vector<RefusedLine> refused;
};

// A stock on several lines, as bought for cash and on credit, becomes one holding with the mean price. A
// missing price is 0.
HoldingsFile ReadHoldings(const std::filesystem::path& path, const StockIndex& stocks);

}  // namespace jogeon::terminal
