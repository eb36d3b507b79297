// The watches of this process, over one market whose last day is replayed for each.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "server/service/watches.h"
#include "server/watch/watch_session.h"

namespace jogeon::service {

class LocalWatches : public Watches {
public:
    using Clock = std::chrono::steady_clock;
    using GroupsOf = std::function<std::shared_ptr<const engine::UserGroups>(const std::string& user)>;

    static constexpr std::chrono::minutes kPatience{5};  // with a watch that nobody asks for
    static constexpr std::size_t kMostOfAll = 256;

    // `groups` outlive this. `now` is what the patience is measured by.
    LocalWatches(std::shared_ptr<const market::Market> market, const engine::MarketGroups& groups,
                 GroupsOf groupsOf, std::function<Clock::time_point()> now = Clock::now);
    ~LocalWatches() override;

    WatchStart Open(const std::string& user, const std::string& conditionSet) override;
    WatchNews Advance(const std::string& user, int id, int milliseconds) override;
    void Close(const std::string& user, int id) override;

private:
    struct Watch;
    using Key = std::pair<std::string, int>;  // of whom, and its id

    WatchedStock StockOf(const watch::Quote& quote) const;
    WatchNews NewsOf(const watch::News& told) const;
    void DropForgotten();
    void DemandRoom(const std::string& user);
    std::shared_ptr<Watch> Find(const std::string& user, int id);

    const std::shared_ptr<const market::Market> market_;
    const std::vector<std::string> names_;  // CP949, in the order of the market's stocks
    const engine::MarketGroups& groups_;
    const GroupsOf groupsOf_;
    const std::function<Clock::time_point()> now_;

    std::mutex mutex_;
    std::map<Key, std::shared_ptr<Watch>> watches_;
    int lastId_ = 0;
};

}  // namespace jogeon::service
