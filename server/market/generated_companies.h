// The companies of the generated market: who they are, and how their stock will behave.
#pragma once

#include <vector>

#include "server/market/generated_prices.h"
#include "server/market/market.h"

namespace jogeon::market {

struct Company {
    Instrument stock;  // without fundamentals, which depend on the price
    StockModel model;
    int sector = -1;    // number in Sectors; -1 for a company without a business
    double beta = 1;    // how far it goes with the market
    int commonOf = -1;  // for a preferred stock the number of the company's common stock, else -1
};

// `count` stocks in order of code over these trading days; a preferred stock stands behind its common one.
std::vector<Company> MakeCompanies(int count, const std::vector<int>& tradingDays, RandomNumbers random);

}  // namespace jogeon::market
