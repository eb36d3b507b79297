// What belongs to one user: interest groups, themes, news sources, and accounts with their holdings.
//
// Interest groups have codes "501" to "599", themes "601" to "699", news sources "902" to "908". A user whom
// the service meets for the first time gets examples of all of them, made from the market.
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

    // The first code of an interest group that is free, empty if none is.
    std::string FreeInterestCode() const;
};

UserGroups ExampleGroups(const market::Market& market, std::string_view user);

}  // namespace jogeon::engine
