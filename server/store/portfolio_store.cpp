#include "server/store/portfolio_store.h"

#include <utility>

#include "server/store/store_schema.h"

namespace jogeon::store {
namespace {

constexpr std::size_t kCodeBytes = 6;
constexpr std::int64_t kNotMet = 0;  // revisions count from 1

std::string Joined(const std::vector<std::string>& codes) {
    std::string joined;
    for (const std::string& code : codes) joined += code;
    return joined;
}

std::vector<std::string> Parted(const std::string& joined) {
    std::vector<std::string> codes;
    for (std::size_t at = 0; at < joined.size(); at += kCodeBytes)
        codes.push_back(joined.substr(at, kCodeBytes));
    return codes;
}

}  // namespace

PortfolioStore::PortfolioStore(const std::filesystem::path& file, Examples examples)
    : examples_(std::move(examples)),
      database_(OpenStore(file)),
      readRevision_(database_, "SELECT revision FROM investors WHERE user = ?"),
      readLastGroup_(database_, "SELECT last_group FROM investors WHERE user = ?"),
      writeInvestor_(database_,
                     "INSERT INTO investors (user, revision, last_group) VALUES (?, ?, ?) ON CONFLICT (user)"
                     " DO UPDATE SET revision = excluded.revision, last_group = excluded.last_group"),
      readGroups_(database_, "SELECT code, name, stocks FROM interest_groups WHERE user = ? ORDER BY place"),
      writeGroup_(database_,
                  "INSERT INTO interest_groups (user, code, place, name, stocks) VALUES (?, ?, ?, ?, ?)"),
      removeGroups_(database_, "DELETE FROM interest_groups WHERE user = ?"),
      readAccounts_(database_, "SELECT number FROM accounts WHERE user = ? ORDER BY place"),
      writeAccount_(database_, "INSERT INTO accounts (user, number, place) VALUES (?, ?, ?)"),
      removeAccounts_(database_, "DELETE FROM accounts WHERE user = ?"),
      readHoldings_(database_,
                    "SELECT stock, quantity, average_price FROM holdings"
                    " WHERE user = ? AND account = ? ORDER BY place"),
      writeHolding_(database_,
                    "INSERT INTO holdings (user, account, place, stock, quantity, average_price)"
                    " VALUES (?, ?, ?, ?, ?, ?)"),
      removeHoldings_(database_, "DELETE FROM holdings WHERE user = ?") {}

std::int64_t PortfolioStore::Revision(const std::string& user) {
    const std::lock_guard lock(mutex_);
    return MeetAndTellRevision(user);
}

PortfolioStore::State PortfolioStore::Read(const std::string& user) {
    const std::lock_guard lock(mutex_);
    MeetAndTellRevision(user);
    Transaction transaction(database_, Transaction::Kind::Read);
    return {RevisionOf(user), PortfolioOf(user)};
}

bool PortfolioStore::Change(const std::string& user, const Edit& edit) {
    const std::lock_guard lock(mutex_);
    MeetAndTellRevision(user);
    Transaction transaction(database_, Transaction::Kind::Write);
    const Portfolio before = PortfolioOf(user);
    Portfolio after = before;
    if (!edit(after)) return false;
    if (after == before) return true;
    WriteChanges(user, before, after, RevisionOf(user) + 1);
    transaction.Commit();
    return true;
}

// Another process may meet him between the two looks.
std::int64_t PortfolioStore::MeetAndTellRevision(const std::string& user) {
    if (const std::int64_t revision = RevisionOf(user); revision != kNotMet) return revision;
    Transaction transaction(database_, Transaction::Kind::Write);
    if (const std::int64_t revision = RevisionOf(user); revision != kNotMet) return revision;
    WriteChanges(user, {}, examples_(user), kNotMet + 1);
    transaction.Commit();
    return kNotMet + 1;
}

std::int64_t PortfolioStore::RevisionOf(const std::string& user) {
    Execution revision(readRevision_, user);
    return revision.Next() ? revision.Number(0) : kNotMet;
}

Portfolio PortfolioStore::PortfolioOf(const std::string& user) {
    Portfolio portfolio;
    Execution lastGroup(readLastGroup_, user);
    if (lastGroup.Next()) portfolio.lastGroup = static_cast<int>(lastGroup.Number(0));
    Execution groups(readGroups_, user);
    while (groups.Next())
        portfolio.groups.push_back({groups.Bytes(0), groups.Bytes(1), Parted(groups.Bytes(2))});
    Execution accounts(readAccounts_, user);
    while (accounts.Next()) {
        const std::string number = accounts.Bytes(0);
        portfolio.accounts.push_back({number, HoldingsOf(user, number)});
    }
    return portfolio;
}

std::vector<Holding> PortfolioStore::HoldingsOf(const std::string& user, const std::string& account) {
    std::vector<Holding> holdings;
    Execution rows(readHoldings_, user, account);
    while (rows.Next()) holdings.push_back({rows.Bytes(0), rows.Number(1), rows.Real(2)});
    return holdings;
}

void PortfolioStore::WriteChanges(const std::string& user, const Portfolio& before, const Portfolio& after,
                                  std::int64_t revision) {
    Execution(writeInvestor_, user, revision, std::int64_t{after.lastGroup}).Next();
    if (before.groups != after.groups) WriteGroups(user, after);
    if (before.accounts != after.accounts) WriteAccounts(user, after);
}

void PortfolioStore::WriteGroups(const std::string& user, const Portfolio& portfolio) {
    Execution(removeGroups_, user).Next();
    std::int64_t place = 0;
    for (const InterestGroup& group : portfolio.groups)
        Execution(writeGroup_, user, group.code, place++, group.name, Joined(group.stocks)).Next();
}

void PortfolioStore::WriteAccounts(const std::string& user, const Portfolio& portfolio) {
    Execution(removeAccounts_, user).Next();
    Execution(removeHoldings_, user).Next();
    std::int64_t place = 0;
    for (const HeldAccount& account : portfolio.accounts) {
        Execution(writeAccount_, user, account.number, place++).Next();
        std::int64_t row = 0;
        for (const Holding& held : account.holdings)
            Execution(writeHolding_, user, account.number, row++, held.stock, held.quantity,
                      held.averagePrice)
                .Next();
    }
}

}  // namespace jogeon::store
