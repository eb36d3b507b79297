#include "server/service/user_table.h"

#include <utility>

#include "server/engine/news_groups.h"

namespace jogeon::service {
namespace {

// The stocks that the market has; a stock that it has no longer is nowhere to be searched.
template <typename List, typename CodeOf>
indicators::BitSet MembersOf(const market::Market& market, const List& list, CodeOf codeOf) {
    indicators::BitSet members(market.Instruments().size());
    for (const auto& entry : list) {
        const int stock = market.Find(codeOf(entry));
        if (stock >= 0) members.Set(static_cast<std::size_t>(stock));
    }
    return members;
}

}  // namespace

UserTable::UserTable(const market::Market& market, std::shared_ptr<store::PortfolioStore> portfolios)
    : market_(market), portfolios_(std::move(portfolios)) {}

UserTable::Groups UserTable::Of(const std::string& user) {
    const std::lock_guard lock(mutex_);
    Known& known = users_[user];
    if (known.groups && known.revision == portfolios_->Revision(user)) return known.groups;
    const store::PortfolioStore::State state = portfolios_->Read(user);
    known.groups = Build(state.portfolio);
    known.revision = state.revision;
    return known.groups;
}

UserTable::Groups UserTable::Build(const store::Portfolio& portfolio) {
    if (!examples_) examples_ = {engine::ExampleThemes(market_), engine::ExampleNews(market_)};
    auto groups = std::make_shared<engine::UserGroups>();
    groups->themes = examples_->themes;
    groups->news = examples_->news;
    const auto itself = [](const std::string& code) -> const std::string& { return code; };
    for (const store::InterestGroup& group : portfolio.groups)
        groups->interests.push_back({group.code, group.name, MembersOf(market_, group.stocks, itself)});
    const auto stockOf = [](const store::Holding& held) -> const std::string& { return held.stock; };
    for (const store::HeldAccount& account : portfolio.accounts)
        groups->accounts.push_back({account.number, MembersOf(market_, account.holdings, stockOf)});
    return groups;
}

}  // namespace jogeon::service
