// One condition set, watched over a day: which stocks come to match it and which no longer do, and why.
//
// Relies on a feed for the ticks, and on the plan and the indicators of a search for the verdicts, so that
// what matches at any moment is what a search on the same bars finds. The plan is judged for all stocks at
// once behind each batch of ticks; what of it depends on earlier bars only is computed once. Not for several
// threads at once.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "server/engine/condition_plan.h"
#include "server/engine/search.h"
#include "server/watch/feed.h"
#include "server/watch/live_market.h"

namespace jogeon::watch {

// A stock at the moment.
struct Quote {
    int stock = 0;
    double price = 0;   // won
    double change = 0;  // percent against the day before, kMissing where that is unknown
};

// A condition whose truth has changed for a stock.
struct Flip {
    char letter = ' ';
    bool holds = false;

    friend bool operator==(const Flip&, const Flip&) = default;
};

// A stock came to match, or no longer does.
struct Event {
    Quote quote;
    TimeOfDay time = 0;  // of the judgement
    bool entered = false;
    std::vector<Flip> flips;  // since the judgement before; in order of letters
};

// A stock that matches now.
struct Match {
    Quote quote;
    TimeOfDay since = 0;
    std::string holding;  // letters of the conditions that are true
};

struct News {
    TimeOfDay time = 0;
    bool over = false;
    std::size_t ticks = 0;       // since the news before
    std::vector<Event> events;   // since the news before, in order of time, then of code
    std::vector<Match> matches;  // in order of code
};

// The groups that a target may name. The market's outlive the session; the user's are as they were when it
// began.
struct WatchGroups {
    const engine::MarketGroups& market;
    std::shared_ptr<const engine::UserGroups> user;
};

class WatchSession {
public:
    // Ten seconds of a fast replay are judged at once, no more: little comes and goes unseen.
    static constexpr TimeOfDay kLongestBatch = 10'000;

    // Watches the last day of `market`. The scope of the order is always the whole. Throws what a search for
    // the order throws (BadSearch, BadCondition), and MarketError for a market without days. `longestBatch`
    // is above 0.
    WatchSession(std::shared_ptr<const market::Market> market, const engine::SearchOrder& order,
                 WatchGroups groups, std::unique_ptr<Feed> feed, TimeOfDay longestBatch = kLongestBatch);

    // Lets the clock go on by `milliseconds`, never back and not beyond the close.
    News Advance(int milliseconds);

private:
    using Truths = std::map<char, indicators::BitSet>;

    bool LooksBackOnly(const engine::ConditionPlan::Step& step) const;
    void TakeBatch(News& news);
    void Judge();
    indicators::BitSet MatchesNow();
    Truths TruthsNow() const;
    void Compare(const indicators::BitSet& matches, const Truths& before, std::vector<Event>& events);
    Quote QuoteOf(std::size_t stock) const;
    std::vector<Match> Matches() const;

    const std::shared_ptr<LiveMarket> market_;
    const TargetFields target_;
    const engine::ConditionPlan plan_;
    const WatchGroups groups_;
    const std::unique_ptr<Feed> feed_;
    const TimeOfDay longestBatch_;

    indicators::Groundwork groundwork_;
    TimeOfDay now_ = kOpening;
    std::vector<Tick> ticks_;
    // Of the expression's conditions, as of the last judgement.
    std::map<char, indicators::Verdict> verdicts_;
    indicators::BitSet matches_;
    std::vector<TimeOfDay> since_;  // one for each stock
};

}  // namespace jogeon::watch
