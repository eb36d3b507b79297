#include "terminal/interest/portfolio_book.h"

#include <algorithm>
#include <exception>
#include <set>
#include <utility>

#include "terminal/interest/portfolio_texts.h"

namespace jogeon::terminal {
namespace {

using service::Verdict;

// The stocks of groups and accounts that have no quote yet.
std::vector<std::string> WithoutQuote(const std::vector<service::InterestGroup>& groups,
                                      const std::vector<service::HeldAccount>& accounts,
                                      const std::map<std::string, service::Quote>& known) {
    std::set<std::string> codes;
    for (const service::InterestGroup& group : groups) codes.insert(group.stocks.begin(), group.stocks.end());
    for (const service::HeldAccount& account : accounts)
        for (const service::Holding& held : account.holdings) codes.insert(held.stock);
    std::erase_if(codes, [&](const std::string& code) { return known.contains(code); });
    return {codes.begin(), codes.end()};
}

}  // namespace

PortfolioBook::PortfolioBook(const Workplace& workplace, QObject* parent)
    : QObject(parent), workplace_(workplace) {}

PortfolioBook::~PortfolioBook() {
    std::vector<Command> commands;
    for (Task& task : tasks_)
        if (task.command) commands.push_back(std::move(task.command));
    if (commands.empty()) return;
    underWay_.then(&workplace_.workers, [commands = std::move(commands), user = workplace_.user,
                                         &portfolios = workplace_.service.GetPortfolios()](const Answer&) {
        for (const Command& command : commands) {
            try {
                command(portfolios, user);
            } catch (const std::exception&) {  // the others may still be made
            }
        }
    });
}

const service::InterestGroup* PortfolioBook::FindGroup(const std::string& code) const {
    const auto found = std::find_if(groups_.begin(), groups_.end(),
                                    [&](const service::InterestGroup& group) { return group.code == code; });
    return found == groups_.end() ? nullptr : &*found;
}

const service::HeldAccount* PortfolioBook::FindAccount(const std::string& number) const {
    const auto found = std::find_if(accounts_.begin(), accounts_.end(),
                                    [&](const service::HeldAccount& held) { return held.number == number; });
    return found == accounts_.end() ? nullptr : &*found;
}

const service::Quote* PortfolioBook::QuoteOf(const std::string& code) const {
    const auto found = quotes_.find(code);
    return found == quotes_.end() ? nullptr : &found->second;
}

std::string PortfolioBook::NameOf(const std::string& code) const {
    const service::StockEntry* stock = stocks_.ByCode(code);
    return stock ? stock->name : code;
}

void PortfolioBook::Refresh() {
    const bool waits =
        std::any_of(tasks_.begin(), tasks_.end(), [](const Task& task) { return !task.command; });
    if (!waits) Queue({});
}

void PortfolioBook::Renew() {
    outdated_ = true;
    Refresh();
}

void PortfolioBook::Do(Command command, Done done) {
    Queue({std::move(command), std::move(done)});
}

void PortfolioBook::EditStocks(const std::string& group, service::Portfolios::StockEdit edit, Done done) {
    Do(
        [group, edit = std::move(edit)](service::Portfolios& portfolios,
                                        const std::string& user) -> service::Addition {
            return {portfolios.EditStocks(user, group, edit), {}};
        },
        std::move(done));
}

void PortfolioBook::Queue(Task task) {
    tasks_.push_back(std::move(task));
    if (!working_) StartNext();
}

void PortfolioBook::StartNext() {
    working_ = !tasks_.empty();
    if (!working_) return;
    const Task task = std::move(tasks_.front());
    tasks_.pop_front();
    underWay_ = InBackground(
        workplace_, *this,
        [&portfolios = workplace_.service.GetPortfolios(), user = workplace_.user, command = task.command,
         anew = outdated_, wantStocks = outdated_ || stocks_.All().empty(),
         known = outdated_ ? Quotes() : quotes_] {
            Answer answer = Ask(portfolios, user, command, wantStocks, known);
            answer.anew = anew;
            return answer;
        },
        [this, done = task.done](const Answer& answer) { Take(answer, done); });
}

// On a thread of the workplace.
PortfolioBook::Answer PortfolioBook::Ask(service::Portfolios& portfolios, const std::string& user,
                                         const Command& command, bool wantStocks, const Quotes& known) {
    Answer answer;
    try {
        if (command) answer.addition = command(portfolios, user);
        answer.groups = portfolios.Groups(user);
        answer.accounts = portfolios.Accounts(user);
        if (wantStocks) answer.stocks = portfolios.Stocks();
        answer.quotes = portfolios.Quotes(WithoutQuote(answer.groups, answer.accounts, known));
    } catch (const std::exception& error) {
        answer.failure = error.what();
    }
    return answer;
}

void PortfolioBook::Take(const Answer& answer, const Done& done) {
    if (!answer.failure.empty()) {
        StartNext();
        emit Failed(QString::fromStdString(answer.failure));
        return;
    }
    groups_ = answer.groups;
    accounts_ = answer.accounts;
    if (answer.stocks) stocks_ = StockIndex(*answer.stocks);
    if (answer.anew) {
        quotes_.clear();
        outdated_ = false;
    }
    for (const service::Quote& quote : answer.quotes) quotes_[quote.code] = quote;
    loaded_ = true;
    StartNext();
    emit Changed();
    if (answer.addition.verdict != Verdict::Taken) {
        emit Refused(WhyNot(answer.addition.verdict));
    } else if (done) {
        done(answer.addition);
    }
}

}  // namespace jogeon::terminal
