// What belongs to one user: interest groups, themes, news sources, and accounts with their holdings.
//
// Interest groups have codes "501" to "599", themes "601" to "699", news sources "902" to "908". Themes and
// news are examples, made from the market.
#pragma once

#include "server/engine/stock_group.h"
#include "server/market/market.h"

namespace jogeon::engine {

struct Account {
    std::string number;  // eleven digits
    indicators::BitSet holdings;
};

struct UserGroups {
    GroupList interests;
    GroupList themes;
    GroupList news;
    std::vector<Account> accounts;

    // The account with this number, null if there is none.
    const Account* FindAccount(std::string_view number) const;
};

// Those themes that this market has stocks for.
GroupList ExampleThemes(const market::Market& market);

}  // namespace jogeon::engine
