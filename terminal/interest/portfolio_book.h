// The user's groups and holdings as a window of the terminal works on them.
//
// The service is asked on the workplace's threads, one thing after the other in the order it was asked for;
// answers come back on the window's thread. What the book shows is what the service had at the last answer.
// Changes that wait when the book goes are still made, and nobody is told.
#pragma once

#include <QFuture>
#include <QObject>
#include <deque>
#include <functional>
#include <map>
#include <optional>

#include "terminal/screens/workplace.h"
#include "terminal/stocks/stock_index.h"

namespace jogeon::terminal {

class PortfolioBook : public QObject {
    Q_OBJECT

public:
    explicit PortfolioBook(const Workplace& workplace, QObject* parent = nullptr);
    ~PortfolioBook() override;

    // Whether the service has answered at least once.
    bool Loaded() const { return loaded_; }

    // Whether nothing is under way.
    bool Idle() const { return !working_; }

    const std::vector<service::InterestGroup>& Groups() const { return groups_; }
    const std::vector<service::HeldAccount>& Accounts() const { return accounts_; }
    const StockIndex& Stocks() const { return stocks_; }

    // The group with this code, the account with this number; null if there is none.
    const service::InterestGroup* FindGroup(const std::string& code) const;
    const service::HeldAccount* FindAccount(const std::string& number) const;

    // Of any stock in a group or an account; null for others.
    const service::Quote* QuoteOf(const std::string& code) const;

    // The stock's name; its code where the market has no such stock.
    std::string NameOf(const std::string& code) const;

    // Reads everything anew.
    void Refresh();

    // The same, with names and prices, which are else taken to stay as they were read once.
    void Renew();

    // A change, made on another thread: it touches nothing but what it is given. Add's code goes on to
    // `done`.
    using Command =
        std::function<service::Addition(service::Portfolios& portfolios, const std::string& user)>;
    using Done = std::function<void(const service::Addition& answer)>;

    // Makes a change, reads everything anew, and then calls `done` on this thread, if it was taken. A change
    // that wasn't is told with Refused.
    void Do(Command command, Done done = {});

    // Edits the stocks that the group has at that moment, as service::Portfolios does.
    void EditStocks(const std::string& group, service::Portfolios::StockEdit edit, Done done = {});

signals:
    void Changed();
    void Refused(const QString& why);

    // The service couldn't be asked, or couldn't tell.
    void Failed(const QString& why);

private:
    using Quotes = std::map<std::string, service::Quote>;

    struct Task {
        Command command;  // empty to read only
        Done done;
    };
    struct Answer {
        service::Addition addition;
        std::vector<service::InterestGroup> groups;
        std::vector<service::HeldAccount> accounts;
        bool anew = false;                                       // no stock and no quote was taken as known
        std::optional<std::vector<service::StockEntry>> stocks;  // the first time
        std::vector<service::Quote> quotes;                      // of stocks that had none yet
        std::string failure;                                     // empty for none
    };

    static Answer Ask(service::Portfolios& portfolios, const std::string& user, const Command& command,
                      bool wantStocks, const Quotes& known);
    void Queue(Task task);
    void StartNext();
    void Take(const Answer& answer, const Done& done);

    const Workplace workplace_;
    std::deque<Task> tasks_;    // that wait
    QFuture<Answer> underWay_;  // the task before them
    bool working_ = false;
    bool loaded_ = false;
    bool outdated_ = false;  // stocks and quotes
    std::vector<service::InterestGroup> groups_;
    std::vector<service::HeldAccount> accounts_;
    StockIndex stocks_;
    Quotes quotes_;
};

}  // namespace jogeon::terminal
