// The portfolios of this process's service, in its store.
#pragma once

#include <filesystem>
#include <memory>

#include "server/market/market.h"
#include "server/service/portfolio_rules.h"
#include "server/service/portfolios.h"

namespace jogeon::service {

class LocalPortfolios : public Portfolios {
public:
    // Throws StoreError when the store's file can't be used.
    LocalPortfolios(std::shared_ptr<const market::Market> market, const std::filesystem::path& store);

    // Where searches find the users' groups.
    const std::shared_ptr<store::PortfolioStore>& Store() const { return store_; }

    std::vector<InterestGroup> Groups(const std::string& user) override;
    Addition Add(const std::string& user, const std::string& name,
                 const std::vector<std::string>& stocks) override;
    Verdict Rename(const std::string& user, const std::string& code, const std::string& name) override;
    Verdict Delete(const std::string& user, const std::string& code) override;
    Verdict Reorder(const std::string& user, const std::vector<std::string>& codes) override;
    Verdict SetStocks(const std::string& user, const std::string& code,
                      const std::vector<std::string>& before,
                      const std::vector<std::string>& stocks) override;
    std::vector<HeldAccount> Accounts(const std::string& user) override;
    Verdict SetHoldings(const std::string& user, const std::string& account,
                        const std::vector<Holding>& holdings) override;
    Verdict RemoveAccount(const std::string& user, const std::string& account) override;
    std::vector<StockEntry> Stocks() override;
    std::vector<Quote> Quotes(const std::vector<std::string>& codes) override;

private:
    // Carries a command of the rules out on the user's portfolio, in one transaction.
    template <typename Command>
    Verdict Do(const std::string& user, Command command);

    const std::shared_ptr<const market::Market> market_;
    const std::shared_ptr<store::PortfolioStore> store_;
    const PortfolioRules rules_;
};

}  // namespace jogeon::service
