// What a chart needs of the service: the bars of a stock, and the days on which a condition set was true
// of it.
//
// Callable from several threads at once. Codes are six bytes, texts CP949. Every call throws
// std::runtime_error, with one line that says why, when the service can't tell.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "server/market/market.h"

namespace jogeon::service {

// A bar of one stock; prices in won, volume in shares.
struct ChartBar {
    int date = 0;  // yyyymmdd; of a week or month its last trading day in the market
    double open = 0;
    double high = 0;
    double low = 0;
    double close = 0;
    double volume = 0;
    // The market has bars between the one before and this one, and the stock hasn't. A gap ends a stock's
    // history for every indicator.
    bool afterGap = false;

    friend bool operator==(const ChartBar&, const ChartBar&) = default;
};

struct StockBars {
    std::string name;
    std::vector<ChartBar> bars;  // the oldest first; bars that the stock doesn't have are left out

    friend bool operator==(const StockBars&, const StockBars&) = default;
};

class Charts {
public:
    virtual ~Charts() = default;

    // None for a code that the market doesn't have.
    virtual std::optional<StockBars> Bars(const std::string& code, market::Timeframe timeframe) = 0;

    // The dates, ascending, at whose end a search with the conditions and the expression of `conditionSet`
    // would have found the stock in a universe that has it. The set is a header of 828 bytes and 71 for each
    // condition; one that no search would take, or a code that is unknown, throws.
    virtual std::vector<int> TrueDays(const std::string& user, const std::string& conditionSet,
                                      const std::string& code) = 0;
};

}  // namespace jogeon::service
