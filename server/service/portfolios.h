// The interest groups and holdings of the service's users, and what a window needs to show stocks by name.
//
// Callable from several threads at once. Texts are CP949, stocks six-byte codes. A change is kept when the
// call returns, for every terminal of the user and every search from then on. Calls throw std::runtime_error
// when the service can't tell; a change whose call throws may have been made or not.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "server/store/portfolio_store.h"

namespace jogeon::service {

using store::HeldAccount;
using store::Holding;

inline constexpr std::size_t kMostGroups = 99;     // of a user
inline constexpr std::size_t kMostNameBytes = 40;  // of a group's name
inline constexpr std::size_t kMostStocks = 500;    // of a group, and of an account
inline constexpr std::size_t kMostAccounts = 20;   // of a user
inline constexpr std::size_t kAccountDigits = 11;

struct InterestGroup {
    std::string code;  // "501" to "599"
    std::string name;
    std::vector<std::string> stocks;  // in the user's order

    friend bool operator==(const InterestGroup&, const InterestGroup&) = default;
};

// Whether a change was taken, and if not, why. The numbers travel between terminal and service.
enum class Verdict {
    Taken,
    BadName,          // none, too long, with control characters, or no text
    NameInUse,        // by another group of the user
    TooManyGroups,    // he has 99
    NoSuchGroup,      // it may have been deleted elsewhere
    NotEveryGroup,    // a new order doesn't name every group once
    TooManyStocks,    // more than 500
    BadStocks,        // one is neither of the market nor there already, or stands there twice
    BadAccount,       // its number isn't eleven digits
    TooManyAccounts,  // he has 20
    NoSuchAccount,
    BadHolding,     // its quantity isn't from 1 to a billion, or its price isn't from 0 to a trillion won
    StocksChanged,  // the group no longer has the stocks that the change is based on
};
inline constexpr int kVerdicts = static_cast<int>(Verdict::StocksChanged) + 1;

struct Addition {
    Verdict verdict{};
    std::string code;  // of the new group, empty if it wasn't taken
};

struct StockEntry {
    std::string code;
    std::string name;
    char market = 'K';  // 'K' 거래소, 'Q' 코스닥

    friend bool operator==(const StockEntry&, const StockEntry&) = default;
};

// The last day of a stock, in won. NaN where the market has no such bar.
struct Quote {
    std::string code;
    double close = 0;
    double change = 0;  // against the day before
};

class Portfolios {
public:
    virtual ~Portfolios() = default;

    virtual std::vector<InterestGroup> Groups(const std::string& user) = 0;

    // Adds a group behind the others. Blanks around a name are left out, here and in Rename.
    virtual Addition Add(const std::string& user, const std::string& name,
                         const std::vector<std::string>& stocks) = 0;
    virtual Verdict Rename(const std::string& user, const std::string& code, const std::string& name) = 0;
    virtual Verdict Delete(const std::string& user, const std::string& code) = 0;

    // Puts the groups in this order of their codes.
    virtual Verdict Reorder(const std::string& user, const std::vector<std::string>& codes) = 0;

    // Gives a group that has the stocks `before` these `stocks`; one that has others by now stays as it is. A
    // stock that the market no longer has may stay where it is, but not be added.
    virtual Verdict SetStocks(const std::string& user, const std::string& code,
                              const std::vector<std::string>& before,
                              const std::vector<std::string>& stocks) = 0;

    // Lets `edit` change the stocks that the group has now. It is called again with those that the group has
    // then, if another terminal was faster.
    using StockEdit = std::function<void(std::vector<std::string>& stocks)>;
    Verdict EditStocks(const std::string& user, const std::string& code, const StockEdit& edit);

    virtual std::vector<HeldAccount> Accounts(const std::string& user) = 0;

    // Makes these all that the account holds; an account that the user doesn't have becomes his.
    virtual Verdict SetHoldings(const std::string& user, const std::string& account,
                                const std::vector<Holding>& holdings) = 0;
    virtual Verdict RemoveAccount(const std::string& user, const std::string& account) = 0;

    // Every stock of the market, in order of code.
    virtual std::vector<StockEntry> Stocks() = 0;

    // One quote for each of the codes, in their order.
    virtual std::vector<Quote> Quotes(const std::vector<std::string>& codes) = 0;
};

}  // namespace jogeon::service
