// The records of a portfolio as messages of a connection, there and back.
#pragma once

#include "server/remote/portfolio.pb.h"
#include "server/service/portfolios.h"

namespace jogeon::remote {

template <typename Texts>
std::vector<std::string> ToVector(const Texts& texts) {
    return {texts.begin(), texts.end()};
}

inline void Write(const service::InterestGroup& group, InterestGroup& to) {
    to.set_code(group.code);
    to.set_name(group.name);
    to.mutable_stocks()->Assign(group.stocks.begin(), group.stocks.end());
}

inline service::InterestGroup Read(const InterestGroup& from) {
    return {from.code(), from.name(), ToVector(from.stocks())};
}

inline void Write(const service::HeldAccount& account, HeldAccount& to) {
    to.set_number(account.number);
    for (const service::Holding& held : account.holdings) {
        Holding& holding = *to.add_holdings();
        holding.set_stock(held.stock);
        holding.set_quantity(held.quantity);
        holding.set_average_price(held.averagePrice);
    }
}

inline service::HeldAccount Read(const HeldAccount& from) {
    service::HeldAccount account{from.number(), {}};
    for (const Holding& held : from.holdings())
        account.holdings.push_back({held.stock(), held.quantity(), held.average_price()});
    return account;
}

}  // namespace jogeon::remote
