// The market's stocks by code and by name, as people and spreadsheets write them.
//
// Texts are CP949. Entries live as long as the index.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "server/service/portfolios.h"

namespace jogeon::terminal {

class StockIndex {
public:
    // `stocks` in order of code.
    explicit StockIndex(std::vector<service::StockEntry> stocks = {});

    const std::vector<service::StockEntry>& All() const { return stocks_; }

    // The stock with this six-byte code; null if there is none, as with all that follow.
    const service::StockEntry* ByCode(std::string_view code) const;

    // The same for a code as tables have it: "A005930", "'005930", and "5930" where a spreadsheet took the
    // code for a number.
    const service::StockEntry* ByWrittenCode(std::string_view text) const;

    // By the whole name, whatever its blanks and small letters.
    const service::StockEntry* ByName(std::string_view name) const;

private:
    std::vector<service::StockEntry> stocks_;
    std::map<std::string, std::size_t> names_;  // place in stocks_
};

// The codes in a pasted text, each once, in its order.
struct PastedStocks {
    std::vector<std::string> codes;
    std::vector<std::string> unknown;  // lines without a stock
};

// A line of cells (tabs between them) is the row of a table: its first cell that is a stock's name or whole
// code counts, since a price can look like a code. Any other line is one name, or codes with blanks, commas
// or semicolons between them. Leading zeros must be there.
PastedStocks ReadPastedStocks(const StockIndex& stocks, std::string_view text);

}  // namespace jogeon::terminal
