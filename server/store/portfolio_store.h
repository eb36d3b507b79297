// The interest groups and holdings of all users, in the file of their condition sets.
//
// The store keeps what it is given: what a group or a holding may be is its user's affair. Every change is
// one transaction, which survives when Change returns and has changed nothing when it throws. Several threads
// and several processes may use one file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "server/store/sqlite_database.h"

namespace jogeon::store {

struct InterestGroup {
    std::string code;                 // "501" to "599"
    std::string name;                 // UTF-8
    std::vector<std::string> stocks;  // six-byte codes, in the user's order

    friend bool operator==(const InterestGroup&, const InterestGroup&) = default;
};

struct Holding {
    std::string stock;  // six bytes
    std::int64_t quantity = 0;
    double averagePrice = 0;  // won, 0 where it isn't known

    friend bool operator==(const Holding&, const Holding&) = default;
};

struct HeldAccount {
    std::string number;  // eleven digits
    std::vector<Holding> holdings;

    friend bool operator==(const HeldAccount&, const HeldAccount&) = default;
};

// All of one user, in his order.
struct Portfolio {
    std::vector<InterestGroup> groups;
    std::vector<HeldAccount> accounts;
    int lastGroup = 0;  // of the group added last, 1 for "501", whether it is still there or not

    friend bool operator==(const Portfolio&, const Portfolio&) = default;
};

class PortfolioStore {
public:
    // What a user gets who is met for the first time. He is met once: what he deletes of it stays deleted.
    using Examples = std::function<Portfolio(const std::string& user)>;

    // Stands for a file: all is gone with the store.
    static constexpr const char* kInMemory = ":memory:";

    // Opens the file, or makes it and its folder. Throws StoreError, like all that follows; these throw what
    // `examples` throws, too.
    PortfolioStore(const std::filesystem::path& file, Examples examples);

    // A number that is another after every change of the user's portfolio, by whatever process.
    std::int64_t Revision(const std::string& user);

    struct State {
        std::int64_t revision = 0;
        Portfolio portfolio;
    };
    State Read(const std::string& user);

    // Lets `edit` change the user's portfolio as it is now, and keeps that if it returns true.
    using Edit = std::function<bool(Portfolio& portfolio)>;
    bool Change(const std::string& user, const Edit& edit);

private:
    std::int64_t MeetAndTellRevision(const std::string& user);
    std::int64_t RevisionOf(const std::string& user);
    Portfolio PortfolioOf(const std::string& user);
    std::vector<Holding> HoldingsOf(const std::string& user, const std::string& account);
    void WriteChanges(const std::string& user, const Portfolio& before, const Portfolio& after,
                      std::int64_t revision);
    void WriteGroups(const std::string& user, const Portfolio& portfolio);
    void WriteAccounts(const std::string& user, const Portfolio& portfolio);

    std::mutex mutex_;
    const Examples examples_;
    Database database_;
    Statement readRevision_;
    Statement readLastGroup_;
    Statement writeInvestor_;
    Statement readGroups_;
    Statement writeGroup_;
    Statement removeGroups_;
    Statement readAccounts_;
    Statement writeAccount_;
    Statement removeAccounts_;
    Statement readHoldings_;
    Statement writeHolding_;
    Statement removeHoldings_;
};

}  // namespace jogeon::store
