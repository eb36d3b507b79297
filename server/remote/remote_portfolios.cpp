#include "server/remote/remote_portfolios.h"

#include "server/remote/connection.h"
#include "server/remote/portfolio_messages.h"

namespace jogeon::remote {
namespace {

using service::Verdict;
using Stub = PortfolioService::Stub;

// A number that this program doesn't know is no answer.
Verdict VerdictOf(std::uint32_t number) {
    if (number >= static_cast<std::uint32_t>(service::kVerdicts))
        throw RemoteError("the server gave an answer that this program doesn't know");
    return static_cast<Verdict>(number);
}

PortfolioUser Message(const std::string& user) {
    PortfolioUser message;
    message.set_user(user);
    return message;
}

// Also for an account, by its number.
GroupRequest GroupMessage(const std::string& user, const std::string& code) {
    GroupRequest message;
    message.set_user(user);
    message.set_code(code);
    return message;
}

}  // namespace

std::vector<service::InterestGroup> RemotePortfolios::Groups(const std::string& user) {
    GroupsReply reply;
    connection_.Demand(&Stub::Groups, Message(user), reply);
    std::vector<service::InterestGroup> groups;
    for (const InterestGroup& group : reply.groups()) groups.push_back(Read(group));
    return groups;
}

service::Addition RemotePortfolios::Add(const std::string& user, const std::string& name,
                                        const std::vector<std::string>& stocks) {
    AddGroupRequest asked;
    asked.set_user(user);
    asked.set_name(name);
    asked.mutable_stocks()->Assign(stocks.begin(), stocks.end());
    AddGroupReply reply;
    connection_.Demand(&Stub::Add, asked, reply);
    return {VerdictOf(reply.verdict()), reply.code()};
}

Verdict RemotePortfolios::Rename(const std::string& user, const std::string& code, const std::string& name) {
    RenameGroupRequest asked;
    asked.set_user(user);
    asked.set_code(code);
    asked.set_name(name);
    return Command(&Stub::Rename, asked);
}

Verdict RemotePortfolios::Delete(const std::string& user, const std::string& code) {
    return Command(&Stub::Delete, GroupMessage(user, code));
}

Verdict RemotePortfolios::Reorder(const std::string& user, const std::vector<std::string>& codes) {
    StocksRequest asked;
    asked.set_user(user);
    asked.mutable_codes()->Assign(codes.begin(), codes.end());
    return Command(&Stub::Reorder, asked);
}

Verdict RemotePortfolios::SetStocks(const std::string& user, const std::string& code,
                                    const std::vector<std::string>& before,
                                    const std::vector<std::string>& stocks) {
    StocksRequest asked;
    asked.set_user(user);
    asked.set_code(code);
    asked.mutable_before()->Assign(before.begin(), before.end());
    asked.mutable_codes()->Assign(stocks.begin(), stocks.end());
    return Command(&Stub::SetStocks, asked);
}

std::vector<service::HeldAccount> RemotePortfolios::Accounts(const std::string& user) {
    HeldAccountsReply reply;
    connection_.Demand(&Stub::Accounts, Message(user), reply);
    std::vector<service::HeldAccount> accounts;
    for (const HeldAccount& account : reply.accounts()) accounts.push_back(Read(account));
    return accounts;
}

Verdict RemotePortfolios::SetHoldings(const std::string& user, const std::string& account,
                                      const std::vector<service::Holding>& holdings) {
    HoldingsRequest asked;
    asked.set_user(user);
    Write(service::HeldAccount{account, holdings}, *asked.mutable_account());
    return Command(&Stub::SetHoldings, asked);
}

Verdict RemotePortfolios::RemoveAccount(const std::string& user, const std::string& account) {
    return Command(&Stub::RemoveAccount, GroupMessage(user, account));
}

std::vector<service::StockEntry> RemotePortfolios::Stocks() {
    const std::lock_guard lock(mutex_);
    if (!stocks_.empty()) return stocks_;
    StockListReply reply;
    connection_.Demand(&Stub::Stocks, StockListRequest(), reply);
    for (const StockEntry& stock : reply.stocks())
        stocks_.push_back({stock.code(), stock.name(), static_cast<char>(stock.market())});
    return stocks_;
}

std::vector<service::Quote> RemotePortfolios::Quotes(const std::vector<std::string>& codes) {
    QuotesRequest asked;
    asked.mutable_codes()->Assign(codes.begin(), codes.end());
    QuotesReply reply;
    connection_.Demand(&Stub::Quotes, asked, reply);
    std::vector<service::Quote> quotes;
    for (const Quote& quote : reply.quotes()) quotes.push_back({quote.code(), quote.close(), quote.change()});
    return quotes;
}

template <typename Method, typename Request>
Verdict RemotePortfolios::Command(Method call, const Request& request) {
    VerdictReply reply;
    connection_.Demand(call, request, reply);
    return VerdictOf(reply.verdict());
}

}  // namespace jogeon::remote
