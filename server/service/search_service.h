// The search service: a request of the screen in, the bytes of its reply out.
//
// It serves one market, as it stands at its last bar, to any number of users and windows, and may be called
// from several threads at once: evaluation runs outside every lock. Nothing that a payload holds can do more
// than fail the request.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "server/engine/market_groups.h"
#include "server/engine/user_groups.h"
#include "server/market/market.h"
#include "server/service/request.h"
#include "server/store/portfolio_store.h"

namespace jogeon::service {

class SearchService {
public:
    // `portfolios` has the users' groups and accounts; without one they are this service's own and go with
    // it. Throws MarketError when the market's last day can't be read.
    explicit SearchService(std::shared_ptr<const market::Market> market, FailureLog log = {},
                           std::shared_ptr<store::PortfolioStore> portfolios = nullptr);
    ~SearchService();
    SearchService(const SearchService&) = delete;
    SearchService& operator=(const SearchService&) = delete;

    // The payload of the reply; empty for a request that has none, and for any that is no search's.
    std::string Handle(const Request& request);

    // Fills the array of every class that is a key of `lists`: a three-byte code, a blank and the name in
    // CP949. A class that the service doesn't have gets no line. False, with the arrays empty, when the
    // market's file turns out damaged or the store fails.
    bool FillCodeLists(const std::string& user, std::map<std::string, std::vector<std::string>>& lists);

    // The numbers of the user's accounts, eleven digits each. Throws MarketError when the market's file turns
    // out damaged, StoreError when the store fails.
    std::vector<std::string> Accounts(const std::string& user);

    // The groups that every user sees; they live as long as this.
    const engine::MarketGroups& Groups() const;

    // The user's own, as they are now. Throws MarketError when the market's file turns out damaged.
    std::shared_ptr<const engine::UserGroups> GroupsOf(const std::string& user);

    // The name, in CP949, of the stock with this six-byte code; empty if it is unknown.
    std::string StockName(const std::string& code) const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace jogeon::service
