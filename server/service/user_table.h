// The groups of the users as a search sees them: sets of this market's stocks.
//
// Relies on the store for what the users have; whoever changed it there, the next look shows it. What is
// handed out never changes under its reader. Callable from several threads.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "server/engine/user_groups.h"
#include "server/store/portfolio_store.h"

namespace jogeon::service {

class UserTable {
public:
    using Groups = std::shared_ptr<const engine::UserGroups>;

    UserTable(const market::Market& market, std::shared_ptr<store::PortfolioStore> portfolios);

    // Throws MarketError when the market's file turns out damaged, StoreError when the store fails.
    Groups Of(const std::string& user);

private:
    struct Known {
        std::int64_t revision = 0;
        Groups groups;
    };
    struct Examples {
        engine::GroupList themes;
        engine::GroupList news;
    };

    Groups Build(const store::Portfolio& portfolio);

    const market::Market& market_;
    const std::shared_ptr<store::PortfolioStore> portfolios_;
    std::mutex mutex_;
    std::optional<Examples> examples_;  // the same for all users
    std::map<std::string, Known> users_;
};

}  // namespace jogeon::service
