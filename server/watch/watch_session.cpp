#include "server/watch/watch_session.h"

#include <algorithm>
#include <utility>

#include "server/engine/last_day.h"
#include "server/indicators/market_day.h"
#include "server/indicators/parameters.h"
#include "server/indicators/windows.h"

namespace jogeon::watch {

using indicators::BitSet;
using market::PriceField;

WatchSession::WatchSession(std::shared_ptr<const market::Market> market, const engine::SearchOrder& order,
                           WatchGroups groups, std::unique_ptr<Feed> feed, TimeOfDay longestBatch)
    : market_(std::make_shared<LiveMarket>(std::move(market))),
      target_(order.target),
      plan_(order.expression, order.conditions),
      groups_(std::move(groups)),
      feed_(std::move(feed)),
      longestBatch_(longestBatch),
      matches_(market_->Instruments().size()),
      since_(market_->Instruments().size(), kOpening) {
    // Whatever can't be judged is refused before the first tick.
    Judge();
    MatchesNow();
}

News WatchSession::Advance(int milliseconds) {
    const TimeOfDay until = now_ + std::clamp(milliseconds, 0, kClosing - now_);
    News news;
    do {
        now_ = std::min(now_ + longestBatch_, until);
        TakeBatch(news);
    } while (now_ < until);
    news.time = now_;
    news.over = feed_->Over();
    news.matches = Matches();
    return news;
}

void WatchSession::TakeBatch(News& news) {
    ticks_.clear();
    feed_->Take(now_, ticks_);
    if (ticks_.empty()) return;
    for (const Tick& tick : ticks_) market_->Take(tick);
    now_ = std::clamp(ticks_.back().time, now_, kClosing);
    news.ticks += ticks_.size();
    const Truths before = TruthsNow();
    Judge();
    Compare(MatchesNow(), before, news.events);
}

// An indicator that is told how many bars ago it shall look sees nothing behind that bar.
bool WatchSession::LooksBackOnly(const engine::ConditionPlan::Step& step) const {
    const auto ago = step.condition.roles.find(indicators::kBarsAgoRole);
    if (ago == step.condition.roles.end()) return false;
    const auto& roles = step.indicator->roles;
    return std::find(roles.begin(), roles.end(), indicators::kBarsAgoRole) != roles.end() &&
           indicators::Parameters(step.condition).BarsAgo() > 0;
}

void WatchSession::Judge() {
    indicators::MarketDay day(market_, indicators::MarketDay::kDefaultMemory, &groundwork_);
    for (const auto& [letter, step] : plan_.Steps()) {
        if (!step.inExpression) continue;
        const bool settled = verdicts_.count(letter) && LooksBackOnly(step);
        if (!settled) verdicts_[letter] = step.indicator->evaluate(day, step.condition);
    }
}

BitSet WatchSession::MatchesNow() {
    const BitSet universe = engine::BuildUniverse(*market_, groups_.market, *groups_.user, target_);
    return plan_.Combine(verdicts_).truth & universe;
}

WatchSession::Truths WatchSession::TruthsNow() const {
    Truths truths;
    for (const auto& [letter, verdict] : verdicts_) truths.emplace(letter, verdict.truth);
    return truths;
}

void WatchSession::Compare(const BitSet& matches, const Truths& before, std::vector<Event>& events) {
    const BitSet changed = (matches & ~matches_) | (matches_ & ~matches);
    changed.ForEach([&](std::size_t stock) {
        Event event{QuoteOf(stock), now_, matches.Get(stock), {}};
        for (const auto& [letter, verdict] : verdicts_) {
            const bool holds = verdict.truth.Get(stock);
            if (holds != before.at(letter).Get(stock)) event.flips.push_back({letter, holds});
        }
        since_[stock] = now_;
        events.push_back(std::move(event));
    });
    matches_ = matches;
}

Quote WatchSession::QuoteOf(std::size_t stock) const {
    const double now = engine::DayValue(*market_, PriceField::Close, stock);
    const double yesterday = engine::DayValue(*market_, PriceField::Close, stock, 1);
    return {static_cast<int>(stock), now, indicators::PercentChange(now, yesterday)};
}

std::vector<Match> WatchSession::Matches() const {
    std::vector<Match> matches;
    matches_.ForEach([&](std::size_t stock) {
        Match match{QuoteOf(stock), since_[stock], {}};
        for (const auto& [letter, verdict] : verdicts_)
            if (verdict.truth.Get(stock)) match.holding += letter;
        matches.push_back(std::move(match));
    });
    return matches;
}

}  // namespace jogeon::watch
