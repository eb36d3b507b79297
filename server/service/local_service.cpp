#include "server/service/local_service.h"

#include <utility>

#include "server/service/store_layout.h"

namespace jogeon::service {

LocalService::LocalService(std::shared_ptr<const market::Market> market, std::unique_ptr<StoreService> store,
                           FailureLog log)
    : market_{market->Source(), market->Generated(), static_cast<int>(market->Instruments().size()),
              market->LastDate()},
      store_(std::move(store)),
      portfolios_(market, store_ ? store_->File() : store::PortfolioStore::kInMemory),
      charts_(market),
      search_(market, std::move(log), portfolios_.Store()),
      watches_(std::move(market), search_.Groups(),
               [this](const std::string& user) { return search_.GroupsOf(user); }) {}

std::string LocalService::Handle(const Request& request) {
    if (request.transaction != kStoreTransaction) return search_.Handle(request);
    return store_ ? store_->Handle(request) : std::string();
}

bool LocalService::FillCodeLists(const std::string& user,
                                 std::map<std::string, std::vector<std::string>>& lists) {
    return search_.FillCodeLists(user, lists);
}

std::vector<std::string> LocalService::Accounts(const std::string& user) {
    return search_.Accounts(user);
}

std::string LocalService::StockName(const std::string& code) {
    return search_.StockName(code);
}

MarketSummary LocalService::Market() {
    return market_;
}

}  // namespace jogeon::service
