// The stocks of an import, put together from whatever its files tell of them.
//
// What a symbols file says counts before what a market day says, and of several market days the latest does;
// the order in which the files are read makes no difference to that.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "server/market/import_form.h"
#include "server/market/market_builder.h"

namespace jogeon::market {

class ImportInstruments {
public:
    explicit ImportInstruments(MarketBuilder& builder) : builder_(builder) {}

    // Takes in one line of a symbols file or of a market day. Gives back what is wrong with the line, which
    // then changes nothing; empty when it is right.
    std::string AddSymbol(const TableHeader& header, const CsvFields& line, SourceText& text);
    std::string AddMarketDay(const TableHeader& header, const CsvFields& line, SourceText& text, int date);

    // The builder's number of the stock with that code, which is added when it is new. `code` is a code.
    int NumberOf(std::string_view code);

    // Completes what no file says: a name, and whether a stock is preferred. To be called once, at the end.
    void Finish();

    // How many stocks have no name but their code. Counts after Finish.
    int Unnamed() const { return unnamed_; }

private:
    struct Origin {
        bool symbols = false;  // a symbols file has told of it
        int dayDate = 0;       // of the latest market day that has, 0 for none
    };

    MarketBuilder& builder_;
    std::vector<Origin> origins_;  // for each of the builder's numbers
    int unnamed_ = 0;
};

// Whether a market's name is one that isn't read: a stock of KONEX has no place in the market.
bool IsForeignMarket(std::string_view name);

}  // namespace jogeon::market
