#include "server/store/portfolio_store.h"

#include <csignal>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "server/store/condition_store.h"
#include "tests/server/market/scratch_folder.h"

namespace jogeon::store {
namespace {

using market::ScratchFolder;

Portfolio Example(const std::string& user) {
    Portfolio portfolio;
    portfolio.groups = {{"501", "첫째 " + user, {"000020", "000010"}}, {"502", "둘째", {}}};
    portfolio.accounts = {{"10010000101", {{"000020", 3, 1234.5}, {"000010", 1, 0}}}};
    portfolio.lastGroup = 2;
    return portfolio;
}

bool DeleteFirst(Portfolio& portfolio) {
    portfolio.groups.erase(portfolio.groups.begin());
    return true;
}

class PortfolioStoreTest : public testing::Test {
protected:
    PortfolioStore Open() { return {folder / "sets", Example}; }

    ScratchFolder folder;
};

TEST_F(PortfolioStoreTest, ExamplesAreGivenOnceAndChangesSurvive) {
    Portfolio changed;
    {
        PortfolioStore store = Open();
        const PortfolioStore::State first = store.Read("kim");
        EXPECT_EQ(first.portfolio, Example("kim"));
        EXPECT_TRUE(store.Change("kim", DeleteFirst));
        EXPECT_NE(store.Revision("kim"), first.revision);
        store.Change("kim", [&](Portfolio& portfolio) {
            portfolio.groups.push_back({"503", "a\"'\\", {"0001A0"}});
            portfolio.groups.insert(portfolio.groups.begin(), {"599", "앞", {"000030", "000010"}});
            portfolio.accounts.push_back({"99999999999", {{"000040", 1'000'000'000, 0.25}}});
            portfolio.lastGroup = 99;
            changed = portfolio;
            return true;
        });
    }
    PortfolioStore store = Open();
    EXPECT_EQ(store.Read("kim").portfolio, changed) << "in its order, and the deleted example is gone";
    EXPECT_EQ(store.Read("lee").portfolio, Example("lee")) << "another user has his own";
}

TEST_F(PortfolioStoreTest, WhatIsRefusedOrFailsChangesNothing) {
    PortfolioStore store = Open();
    const std::int64_t revision = store.Revision("kim");
    EXPECT_FALSE(store.Change("kim", [](Portfolio& portfolio) {
        portfolio.groups.clear();
        return false;
    }));
    EXPECT_THROW(store.Change("kim",
                              [](Portfolio& portfolio) {
                                  portfolio.accounts.clear();
                                  portfolio.groups.push_back({"600", "no code of a group", {}});
                                  return true;
                              }),
                 StoreError);
    EXPECT_TRUE(store.Change("kim", [](Portfolio&) { return true; }));
    EXPECT_EQ(store.Revision("kim"), revision) << "nothing was different";
    EXPECT_EQ(store.Read("kim").portfolio, Example("kim"));
}

TEST_F(PortfolioStoreTest, AnotherProcessSeesAChangeByItsRevision) {
    PortfolioStore one = Open(), other = Open();
    const std::int64_t before = one.Revision("kim");
    EXPECT_EQ(other.Revision("kim"), before);
    other.Change("kim", DeleteFirst);
    EXPECT_NE(one.Revision("kim"), before);
    EXPECT_EQ(one.Read("kim").portfolio.groups.size(), 1u);
}

TEST(StoreMigrationTest, AFileOfTheFirstFormKeepsItsSetsAndTakesPortfolios) {
    const ScratchFolder folder;
    Database(folder / "sets")
        .Run(
            "CREATE TABLE users (id TEXT PRIMARY KEY, version INTEGER NOT NULL"
            " CHECK (version BETWEEN 0 AND 999999)) STRICT;"
            "CREATE TABLE sets (user TEXT NOT NULL, number INTEGER NOT NULL CHECK (number BETWEEN 0 AND 98),"
            " record BLOB NOT NULL, PRIMARY KEY (user, number)) STRICT;"
            "PRAGMA application_id = 0x6A6F676E; PRAGMA user_version = 1;"
            "INSERT INTO users VALUES ('kim', 7); INSERT INTO sets VALUES ('kim', 3, x'616263')");
    PortfolioStore portfolios(folder / "sets", Example);
    ConditionStore sets(folder / "sets");
    EXPECT_EQ(sets.Version("kim"), "000.007");
    EXPECT_EQ(sets.ListAll("kim").sets, (std::vector<StoredSet>{{3, "abc"}}));
    EXPECT_EQ(portfolios.Read("kim").portfolio, Example("kim"));
    portfolios.Change("kim", DeleteFirst);
    EXPECT_EQ(sets.Version("kim"), "000.007") << "the version of the sets is another matter";
}

TEST(StoreProcessesTest, AChangeOfAPortfolioThatReturnedSurvivesAKill) {
    const ScratchFolder folder;
    int pipe[2];
    ASSERT_EQ(::pipe(pipe), 0);
    const pid_t child = fork();
    if (child == 0) {
        PortfolioStore store(folder / "sets", Example);
        for (int i = 0;; ++i) {
            store.Change("kim", [i](Portfolio& portfolio) {
                portfolio.groups[0].name = std::to_string(i);
                portfolio.accounts[0].holdings.assign(2, {"000010", i + 1, 1});
                return true;
            });
            if (write(pipe[1], &i, sizeof i) != sizeof i) _exit(0);
        }
    }
    close(pipe[1]);
    int last = 0;
    for (int n = 0; n < 50; ++n) ASSERT_EQ(read(pipe[0], &last, sizeof last), ssize_t{sizeof last});
    kill(child, SIGKILL);
    while (read(pipe[0], &last, sizeof last) == ssize_t{sizeof last}) continue;
    close(pipe[0]);
    waitpid(child, nullptr, 0);
    const Portfolio found = PortfolioStore(folder / "sets", Example).Read("kim").portfolio;
    const int number = std::stoi(found.groups.at(0).name);
    EXPECT_GE(number, last);
    for (const Holding& held : found.accounts.at(0).holdings)
        EXPECT_EQ(held.quantity, number + 1) << "groups and holdings of one change";
}

}  // namespace
}  // namespace jogeon::store
