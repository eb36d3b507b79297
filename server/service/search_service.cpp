#include "server/service/search_service.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "screen/text/cp949.h"
#include "server/engine/market_groups.h"
#include "server/indicators/market_day.h"
#include "server/service/code_lists.h"
#include "server/service/example_portfolio.h"
#include "server/service/reply_writer.h"
#include "server/service/request_reader.h"
#include "server/service/result_store.h"
#include "server/service/search_layout.h"
#include "server/service/user_table.h"

namespace jogeon::service {
namespace {

constexpr char kStart = 'T';
constexpr char kNextPage = 'N';
constexpr char kRelease = 'Z';

// The columns asked for that exist, each once. The stock itself needs no asking: it is the first field of
// every row.
std::vector<const engine::ReplyColumn*> ColumnsFor(const std::vector<std::string>& fids) {
    std::vector<const engine::ReplyColumn*> columns;
    for (const std::string& fid : fids) {
        const engine::ReplyColumn* column = engine::FindColumn(fid);
        const bool isNew = std::find(columns.begin(), columns.end(), column) == columns.end();
        if (column && isNew) columns.push_back(column);
    }
    return columns;
}

void CutToTotal(engine::SearchResult& result) {
    if (result.matches.size() <= kMaxTotal) return;
    result.matches.resize(kMaxTotal);
    for (engine::ValueColumn& column : result.values) column.values.resize(kMaxTotal);
}

}  // namespace

struct SearchService::State {
    State(std::shared_ptr<const market::Market> served, FailureLog failureLog,
          std::shared_ptr<store::PortfolioStore> portfolios)
        : market(std::move(served)),
          day(market),
          groups(engine::BuildMarketGroups(*market)),
          users(*market, portfolios ? std::move(portfolios)
                                    : OpenPortfolios(market, store::PortfolioStore::kInMemory)),
          log(std::move(failureLog)) {}

    std::string AnswerSearch(const Request& request) {
        const SearchRequest asked = ReadSearchRequest(request.payload);
        auto result = std::make_shared<KeptResult>();
        result->found = engine::Search(day, groups, *users.Of(request.user), asked.order);
        CutToTotal(result->found);
        result->columns = ColumnsFor(asked.fids);
        const int handle = results.Keep({request.user, request.window}, result);
        return BuildPage(kStart, handle, *result, 0, day);
    }

    std::string AnswerNextPage(const Request& request) {
        const PageRequest asked = ReadPageRequest(request.payload);
        const std::shared_ptr<const KeptResult> result =
            results.Find({request.user, request.window}, asked.resultHandle);
        if (!result) throw engine::BadSearch("there is no result to page through");
        const std::size_t received = static_cast<std::size_t>(asked.received);
        if (received > result->found.matches.size()) throw engine::BadSearch("the result has no such page");
        return BuildPage(kNextPage, asked.resultHandle, *result, received, day);
    }

    std::string AnswerSearchTransaction(const Request& request) {
        const char letter = request.payload.front();
        try {
            if (letter == kStart) return AnswerSearch(request);
            if (letter == kNextPage) return AnswerNextPage(request);
        } catch (const std::runtime_error&
                     error) {  // a bad request, search or condition, a damaged market file, a failing store
            Log(error);
            return BuildFailure(letter);
        }
        if (letter == kRelease) results.Release({request.user, request.window});
        return {};
    }

    void Log(const std::exception& error) const {
        if (log) log(error.what());
    }

    const std::shared_ptr<const market::Market> market;
    indicators::MarketDay day;
    const engine::MarketGroups groups;
    UserTable users;
    ResultStore results;
    const FailureLog log;
};

SearchService::SearchService(std::shared_ptr<const market::Market> market, FailureLog log,
                             std::shared_ptr<store::PortfolioStore> portfolios)
    : state_(std::make_unique<State>(std::move(market), std::move(log), std::move(portfolios))) {}

SearchService::~SearchService() = default;

std::string SearchService::Handle(const Request& request) {
    if (request.payload.empty() || request.transaction != kSearchTransaction) return {};
    return state_->AnswerSearchTransaction(request);
}

bool SearchService::FillCodeLists(const std::string& user,
                                  std::map<std::string, std::vector<std::string>>& lists) {
    for (auto& [codeClass, lines] : lists) lines.clear();
    try {
        const UserTable::Groups groups = state_->users.Of(user);
        for (auto& [codeClass, lines] : lists) lines = CodeList(codeClass, state_->groups, *groups);
    } catch (const std::runtime_error& error) {  // a damaged market file, or a store that fails
        state_->Log(error);
        return false;
    }
    return true;
}

std::vector<std::string> SearchService::Accounts(const std::string& user) {
    std::vector<std::string> numbers;
    for (const engine::Account& account : state_->users.Of(user)->accounts) numbers.push_back(account.number);
    return numbers;
}

const engine::MarketGroups& SearchService::Groups() const {
    return state_->groups;
}

std::shared_ptr<const engine::UserGroups> SearchService::GroupsOf(const std::string& user) {
    return state_->users.Of(user);
}

std::string SearchService::StockName(const std::string& code) const {
    const int stock = state_->market->Find(code);
    return stock < 0 ? std::string()
                     : ToCp949(state_->market->Instruments()[static_cast<std::size_t>(stock)].name);
}

}  // namespace jogeon::service
