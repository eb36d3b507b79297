// The service in this process: searches over one market, and the store of condition sets and
// portfolios.
#pragma once

#include <memory>

#include "server/service/local_charts.h"
#include "server/service/local_portfolios.h"
#include "server/service/local_watches.h"
#include "server/service/search_service.h"
#include "server/service/service.h"
#include "server/service/store_service.h"

namespace jogeon::service {

class LocalService : public Service {
public:
    // Without a store, requests over condition sets have no reply, and portfolios live as long as the
    // service. Throws MarketError when the market's last day can't be read, StoreError when the store's file
    // can't be used.
    LocalService(std::shared_ptr<const market::Market> market, std::unique_ptr<StoreService> store,
                 FailureLog log = {});

    std::string Handle(const Request& request) override;
    bool FillCodeLists(const std::string& user,
                       std::map<std::string, std::vector<std::string>>& lists) override;
    std::vector<std::string> Accounts(const std::string& user) override;
    std::string StockName(const std::string& code) override;
    MarketSummary Market() override;
    Portfolios& GetPortfolios() override { return portfolios_; }
    Charts& GetCharts() override { return charts_; }
    Watches& GetWatches() override { return watches_; }

private:
    const MarketSummary market_;
    const std::unique_ptr<StoreService> store_;
    LocalPortfolios portfolios_;
    LocalCharts charts_;
    SearchService search_;
    LocalWatches watches_;
};

}  // namespace jogeon::service
