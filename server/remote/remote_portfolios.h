// The portfolios of a service in another process, over its connection.
//
// Every call throws RemoteError when it failed, and is sent once. The list of stocks is asked for once: it
// doesn't change while a service runs.
#pragma once

#include <mutex>

#include "server/remote/remote_service.h"

namespace jogeon::remote {

class RemotePortfolios : public service::Portfolios {
public:
    // `connection` outlives this.
    explicit RemotePortfolios(RemoteService::Connection& connection) : connection_(connection) {}

    std::vector<service::InterestGroup> Groups(const std::string& user) override;
    service::Addition Add(const std::string& user, const std::string& name,
                          const std::vector<std::string>& stocks) override;
    service::Verdict Rename(const std::string& user, const std::string& code,
                            const std::string& name) override;
    service::Verdict Delete(const std::string& user, const std::string& code) override;
    service::Verdict Reorder(const std::string& user, const std::vector<std::string>& codes) override;
    service::Verdict SetStocks(const std::string& user, const std::string& code,
                               const std::vector<std::string>& before,
                               const std::vector<std::string>& stocks) override;
    std::vector<service::HeldAccount> Accounts(const std::string& user) override;
    service::Verdict SetHoldings(const std::string& user, const std::string& account,
                                 const std::vector<service::Holding>& holdings) override;
    service::Verdict RemoveAccount(const std::string& user, const std::string& account) override;
    std::vector<service::StockEntry> Stocks() override;
    std::vector<service::Quote> Quotes(const std::vector<std::string>& codes) override;

private:
    template <typename Method, typename Request>
    service::Verdict Command(Method call, const Request& request);

    RemoteService::Connection& connection_;
    std::mutex mutex_;
    std::vector<service::StockEntry> stocks_;
};

}  // namespace jogeon::remote
