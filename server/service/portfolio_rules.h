// What a user may do to his portfolio: each command checked, and carried out on it in memory.
//
// A command that isn't taken has left the portfolio as it was. Names are UTF-8, as the store keeps them.
#pragma once

#include <string>
#include <vector>

#include "server/market/market.h"
#include "server/service/portfolios.h"

namespace jogeon::service {

class PortfolioRules {
public:
    explicit PortfolioRules(const market::Market& market) : market_(market) {}

    // `name` of the new group and its stocks; its code is that of the portfolio's last group then.
    Verdict Add(store::Portfolio& portfolio, const std::string& name,
                const std::vector<std::string>& stocks) const;
    Verdict Rename(store::Portfolio& portfolio, const std::string& code, const std::string& name) const;
    Verdict Delete(store::Portfolio& portfolio, const std::string& code) const;
    Verdict Reorder(store::Portfolio& portfolio, const std::vector<std::string>& codes) const;
    Verdict SetStocks(store::Portfolio& portfolio, const std::string& code,
                      const std::vector<std::string>& before, const std::vector<std::string>& stocks) const;
    Verdict SetHoldings(store::Portfolio& portfolio, const std::string& account,
                        const std::vector<Holding>& holdings) const;
    Verdict RemoveAccount(store::Portfolio& portfolio, const std::string& account) const;

private:
    Verdict JudgeStocks(const std::vector<std::string>& stocks, const std::vector<std::string>& before) const;

    const market::Market& market_;
};

}  // namespace jogeon::service
