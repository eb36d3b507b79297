#include "server/service/local_portfolios.h"

#include <utility>

#include "screen/text/cp949.h"
#include "server/engine/last_day.h"
#include "server/service/example_portfolio.h"

namespace jogeon::service {
namespace {

using engine::DayValue;
using market::PriceField;

}  // namespace

LocalPortfolios::LocalPortfolios(std::shared_ptr<const market::Market> market,
                                 const std::filesystem::path& store)
    : market_(std::move(market)), store_(OpenPortfolios(market_, store)), rules_(*market_) {}

std::vector<InterestGroup> LocalPortfolios::Groups(const std::string& user) {
    std::vector<InterestGroup> groups;
    for (store::InterestGroup& group : store_->Read(user).portfolio.groups)
        groups.push_back({std::move(group.code), ToCp949(group.name), std::move(group.stocks)});
    return groups;
}

Addition LocalPortfolios::Add(const std::string& user, const std::string& name,
                              const std::vector<std::string>& stocks) {
    Addition addition;
    addition.verdict = Do(user, [&](store::Portfolio& portfolio) {
        const Verdict verdict = rules_.Add(portfolio, ToUtf8(name), stocks);
        if (verdict == Verdict::Taken) addition.code = portfolio.groups.back().code;
        return verdict;
    });
    return addition;
}

Verdict LocalPortfolios::Rename(const std::string& user, const std::string& code, const std::string& name) {
    return Do(user, [&](store::Portfolio& all) { return rules_.Rename(all, code, ToUtf8(name)); });
}

Verdict LocalPortfolios::Delete(const std::string& user, const std::string& code) {
    return Do(user, [&](store::Portfolio& all) { return rules_.Delete(all, code); });
}

Verdict LocalPortfolios::Reorder(const std::string& user, const std::vector<std::string>& codes) {
    return Do(user, [&](store::Portfolio& all) { return rules_.Reorder(all, codes); });
}

Verdict LocalPortfolios::SetStocks(const std::string& user, const std::string& code,
                                   const std::vector<std::string>& before,
                                   const std::vector<std::string>& stocks) {
    return Do(user, [&](store::Portfolio& all) { return rules_.SetStocks(all, code, before, stocks); });
}

std::vector<HeldAccount> LocalPortfolios::Accounts(const std::string& user) {
    return store_->Read(user).portfolio.accounts;
}

Verdict LocalPortfolios::SetHoldings(const std::string& user, const std::string& account,
                                     const std::vector<Holding>& holdings) {
    return Do(user, [&](store::Portfolio& all) { return rules_.SetHoldings(all, account, holdings); });
}

Verdict LocalPortfolios::RemoveAccount(const std::string& user, const std::string& account) {
    return Do(user, [&](store::Portfolio& all) { return rules_.RemoveAccount(all, account); });
}

std::vector<StockEntry> LocalPortfolios::Stocks() {
    std::vector<StockEntry> entries;
    for (const market::Instrument& stock : market_->Instruments())
        entries.push_back(
            {stock.code, ToCp949(stock.name), stock.exchange == market::Exchange::Kospi ? 'K' : 'Q'});
    return entries;
}

std::vector<Quote> LocalPortfolios::Quotes(const std::vector<std::string>& codes) {
    std::vector<Quote> quotes;
    for (const std::string& code : codes) {
        Quote quote{code, market::kMissing, market::kMissing};
        if (const int found = market_->Find(code); found >= 0) {
            const auto stock = static_cast<std::size_t>(found);
            quote.close = DayValue(*market_, PriceField::Close, stock);
            quote.change = quote.close - DayValue(*market_, PriceField::Close, stock, 1);
        }
        quotes.push_back(std::move(quote));
    }
    return quotes;
}

template <typename Command>
Verdict LocalPortfolios::Do(const std::string& user, Command command) {
    Verdict verdict{};
    store_->Change(user, [&](store::Portfolio& portfolio) {
        verdict = command(portfolio);
        return verdict == Verdict::Taken;
    });
    return verdict;
}

}  // namespace jogeon::service
