#include "server/market/stored_market.h"

#include "server/market/earlier_market.h"

namespace jogeon::market {

std::shared_ptr<const Market> StoredMarket::AsOf(int date) const {
    if (date >= LastDate() && LastDate() != 0) return shared_from_this();
    return ViewAsOf(shared_from_this(), date);
}

}  // namespace jogeon::market
