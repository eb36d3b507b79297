// What a user finds in his portfolio when the service meets him for the first time, and the store that gives
// it to him.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "server/market/market.h"
#include "server/store/portfolio_store.h"

namespace jogeon::service {

// Three interest groups and two accounts with holdings, made from the market; their numbers are the user's
// own. The same for the same market and user. Throws MarketError when the market's file turns out damaged.
store::Portfolio ExamplePortfolio(const market::Market& market, const std::string& user);

// The store in `file`, with these examples for whom it meets. Throws StoreError.
std::shared_ptr<store::PortfolioStore> OpenPortfolios(std::shared_ptr<const market::Market> market,
                                                      const std::filesystem::path& file);

}  // namespace jogeon::service
