#include "server/service/portfolio_rules.h"

#include <algorithm>
#include <set>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon::service {
namespace {

using store::Portfolio;

constexpr std::int64_t kMostQuantity = 1'000'000'000;
constexpr double kMostPrice = 1e12;  // won

// A name counts as the screens know it, in CP949.
bool IsName(const std::string& name) {
    const bool hasControl = std::any_of(
        name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7f; });
    const std::optional<std::string> cp949 = TryToCp949(name);
    return !hasControl && cp949 && !cp949->empty() && cp949->size() <= kMostNameBytes;
}

auto FindGroup(Portfolio& portfolio, const std::string& code) {
    return std::find_if(portfolio.groups.begin(), portfolio.groups.end(),
                        [&](const store::InterestGroup& group) { return group.code == code; });
}

auto FindAccount(Portfolio& portfolio, const std::string& number) {
    return std::find_if(portfolio.accounts.begin(), portfolio.accounts.end(),
                        [&](const HeldAccount& account) { return account.number == number; });
}

// `code` is the group that is to have the name, empty for a new one.
Verdict JudgeName(const Portfolio& portfolio, const std::string& code, const std::string& name) {
    if (!IsName(name)) return Verdict::BadName;
    const bool inUse = std::any_of(
        portfolio.groups.begin(), portfolio.groups.end(),
        [&](const store::InterestGroup& group) { return group.code != code && group.name == name; });
    return inUse ? Verdict::NameInUse : Verdict::Taken;
}

std::string CodeOf(int group) {
    return "5" + ZeroPadded(group, 2);
}

// The first free group behind the last one, round and round: a search that was saved with a group that is
// gone doesn't find another one under its code as long as that can be helped.
int FreeGroup(Portfolio& portfolio) {
    int group = portfolio.lastGroup;
    do group = group % static_cast<int>(kMostGroups) + 1;
    while (FindGroup(portfolio, CodeOf(group)) != portfolio.groups.end());
    return group;
}

bool IsAccount(const std::string& number) {
    return number.size() == kAccountDigits &&
           std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsHolding(const Holding& held) {
    return held.quantity >= 1 && held.quantity <= kMostQuantity && held.averagePrice >= 0 &&
           held.averagePrice <= kMostPrice;
}

std::vector<std::string> StocksOf(const std::vector<Holding>& holdings) {
    std::vector<std::string> stocks;
    for (const Holding& held : holdings) stocks.push_back(held.stock);
    return stocks;
}

}  // namespace

Verdict PortfolioRules::Add(Portfolio& portfolio, const std::string& name,
                            const std::vector<std::string>& stocks) const {
    const std::string trimmed(Trim(name));
    if (const Verdict verdict = JudgeName(portfolio, {}, trimmed); verdict != Verdict::Taken) return verdict;
    if (portfolio.groups.size() >= kMostGroups) return Verdict::TooManyGroups;
    if (const Verdict verdict = JudgeStocks(stocks, {}); verdict != Verdict::Taken) return verdict;
    portfolio.lastGroup = FreeGroup(portfolio);
    portfolio.groups.push_back({CodeOf(portfolio.lastGroup), trimmed, stocks});
    return Verdict::Taken;
}

Verdict PortfolioRules::Rename(Portfolio& portfolio, const std::string& code, const std::string& name) const {
    const auto group = FindGroup(portfolio, code);
    if (group == portfolio.groups.end()) return Verdict::NoSuchGroup;
    const std::string trimmed(Trim(name));
    const Verdict verdict = JudgeName(portfolio, code, trimmed);
    if (verdict == Verdict::Taken) group->name = trimmed;
    return verdict;
}

Verdict PortfolioRules::Delete(Portfolio& portfolio, const std::string& code) const {
    const auto group = FindGroup(portfolio, code);
    if (group == portfolio.groups.end()) return Verdict::NoSuchGroup;
    portfolio.groups.erase(group);
    return Verdict::Taken;
}

Verdict PortfolioRules::Reorder(Portfolio& portfolio, const std::vector<std::string>& codes) const {
    const std::set<std::string> named(codes.begin(), codes.end());
    const bool every =
        codes.size() == portfolio.groups.size() && named.size() == codes.size() &&
        std::all_of(portfolio.groups.begin(), portfolio.groups.end(),
                    [&](const store::InterestGroup& group) { return named.contains(group.code); });
    if (!every) return Verdict::NotEveryGroup;
    std::vector<store::InterestGroup> ordered;
    for (const std::string& code : codes) ordered.push_back(*FindGroup(portfolio, code));
    portfolio.groups = std::move(ordered);
    return Verdict::Taken;
}

Verdict PortfolioRules::SetStocks(Portfolio& portfolio, const std::string& code,
                                  const std::vector<std::string>& before,
                                  const std::vector<std::string>& stocks) const {
    const auto group = FindGroup(portfolio, code);
    if (group == portfolio.groups.end()) return Verdict::NoSuchGroup;
    if (group->stocks != before) return Verdict::StocksChanged;
    const Verdict verdict = JudgeStocks(stocks, before);
    if (verdict == Verdict::Taken) group->stocks = stocks;
    return verdict;
}

Verdict PortfolioRules::SetHoldings(Portfolio& portfolio, const std::string& account,
                                    const std::vector<Holding>& holdings) const {
    if (!IsAccount(account)) return Verdict::BadAccount;
    if (!std::all_of(holdings.begin(), holdings.end(), IsHolding)) return Verdict::BadHolding;
    const auto known = FindAccount(portfolio, account);
    const bool isNew = known == portfolio.accounts.end();
    if (isNew && portfolio.accounts.size() >= kMostAccounts) return Verdict::TooManyAccounts;
    const std::vector<std::string> before = isNew ? std::vector<std::string>() : StocksOf(known->holdings);
    const Verdict verdict = JudgeStocks(StocksOf(holdings), before);
    if (verdict != Verdict::Taken) return verdict;
    if (isNew)
        portfolio.accounts.push_back({account, holdings});
    else
        known->holdings = holdings;
    return Verdict::Taken;
}

Verdict PortfolioRules::RemoveAccount(Portfolio& portfolio, const std::string& account) const {
    const auto known = FindAccount(portfolio, account);
    if (known == portfolio.accounts.end()) return Verdict::NoSuchAccount;
    portfolio.accounts.erase(known);
    return Verdict::Taken;
}

Verdict PortfolioRules::JudgeStocks(const std::vector<std::string>& stocks,
                                    const std::vector<std::string>& before) const {
    if (stocks.size() > kMostStocks) return Verdict::TooManyStocks;
    const std::set<std::string> old(before.begin(), before.end());
    std::set<std::string> seen;
    for (const std::string& code : stocks) {
        if (!seen.insert(code).second) return Verdict::BadStocks;
        if (market_.Find(code) < 0 && !old.contains(code)) return Verdict::BadStocks;
    }
    return Verdict::Taken;
}

}  // namespace jogeon::service
