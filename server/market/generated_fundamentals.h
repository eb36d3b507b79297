// Yearly figures for a generated company that agree with each other and with the price of its stock.
#pragma once

#include "server/market/generated_companies.h"

namespace jogeon::market {

// Fills in `company`, whose last close is `price`. A company without a business has none; some others lack
// a figure, and a quarter of them make a loss.
void FillFundamentals(Company& company, double price, RandomNumbers& random);

}  // namespace jogeon::market
