#include "server/service/local_watches.h"

#include <algorithm>

#include "screen/text/cp949.h"
#include "server/service/request_reader.h"
#include "server/watch/replay_feed.h"

namespace jogeon::service {
namespace {

using watch::WatchSession;

std::vector<std::string> NamesOf(const market::Market& market) {
    std::vector<std::string> names;
    for (const market::Instrument& stock : market.Instruments()) names.push_back(ToCp949(stock.name));
    return names;
}

}  // namespace

struct LocalWatches::Watch {
    explicit Watch(std::unique_ptr<WatchSession> begun) : session(std::move(begun)) {}

    std::mutex mutex;  // for the session; its other holder is at work on it
    const std::unique_ptr<WatchSession> session;
    Clock::time_point asked;  // guarded by the table's mutex
};

LocalWatches::LocalWatches(std::shared_ptr<const market::Market> market, const engine::MarketGroups& groups,
                           GroupsOf groupsOf, std::function<Clock::time_point()> now)
    : market_(std::move(market)),
      names_(NamesOf(*market_)),
      groups_(groups),
      groupsOf_(std::move(groupsOf)),
      now_(std::move(now)) {}

LocalWatches::~LocalWatches() = default;

WatchStart LocalWatches::Open(const std::string& user, const std::string& conditionSet) {
    {
        const std::lock_guard lock(mutex_);
        DropForgotten();
        DemandRoom(user);
    }
    std::shared_ptr<Watch> watch;
    try {
        watch = std::make_shared<Watch>(std::make_unique<WatchSession>(
            market_, ReadConditions(conditionSet), watch::WatchGroups{groups_, groupsOf_(user)},
            std::make_unique<watch::ReplayFeed>(*market_)));
    } catch (const std::runtime_error& error) {  // a bad request, search or condition, or a damaged market
        throw WatchError(error.what());
    }
    const std::lock_guard lock(mutex_);
    DemandRoom(user);  // another thread may have taken it
    watch->asked = now_();
    const int id = ++lastId_;
    watches_.emplace(Key(user, id), std::move(watch));
    return {id, market_->LastDate(), true, watch::kOpening, watch::kClosing};
}

WatchNews LocalWatches::Advance(const std::string& user, int id, int milliseconds) {
    const std::shared_ptr<Watch> watch = Find(user, id);
    const std::lock_guard lock(watch->mutex);
    return NewsOf(watch->session->Advance(milliseconds));
}

WatchedStock LocalWatches::StockOf(const watch::Quote& quote) const {
    const auto stock = static_cast<std::size_t>(quote.stock);
    return {market_->Instruments()[stock].code, names_[stock], quote.price, quote.change};
}

WatchNews LocalWatches::NewsOf(const watch::News& told) const {
    WatchNews news{told.time, told.over, static_cast<std::int64_t>(told.ticks), {}, {}};
    for (const watch::Event& event : told.events) {
        news.events.push_back({StockOf(event.quote), event.time, event.entered, {}, {}});
        for (const watch::Flip& flip : event.flips)
            (flip.holds ? news.events.back().rose : news.events.back().fell) += flip.letter;
    }
    for (const watch::Match& match : told.matches)
        news.matches.push_back({StockOf(match.quote), match.since, match.holding});
    return news;
}

void LocalWatches::Close(const std::string& user, int id) {
    const std::lock_guard lock(mutex_);
    watches_.erase({user, id});
}

std::shared_ptr<LocalWatches::Watch> LocalWatches::Find(const std::string& user, int id) {
    const std::lock_guard lock(mutex_);
    DropForgotten();
    const auto found = watches_.find({user, id});
    if (found == watches_.end()) throw WatchError("감시가 끝났습니다. 다시 시작해 주십시오.");
    found->second->asked = now_();
    return found->second;
}

void LocalWatches::DropForgotten() {
    const Clock::time_point oldest = now_() - kPatience;
    std::erase_if(watches_, [oldest](const auto& watch) { return watch.second->asked < oldest; });
}

void LocalWatches::DemandRoom(const std::string& user) {
    const auto ofUser = std::count_if(watches_.begin(), watches_.end(),
                                      [&user](const auto& watch) { return watch.first.first == user; });
    if (ofUser >= kMostOfUser)
        throw WatchError("한 번에 " + std::to_string(kMostOfUser) + "개까지만 감시할 수 있습니다.");
    if (watches_.size() >= kMostOfAll) throw WatchError("지금은 더 감시할 수 없습니다.");
}

}  // namespace jogeon::service
