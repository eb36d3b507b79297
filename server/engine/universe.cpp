#include "server/engine/universe.h"

#include <algorithm>

#include "server/engine/last_day.h"

namespace jogeon::engine {
namespace {

using indicators::BitSet;
using market::Instrument;
using market::Market;
using market::Status;

constexpr std::string_view kAllSectors = "ALL";
constexpr std::string_view kAllGroups = "0AL";  // all interest groups, or all themes

constexpr int kInterestsOnly = 1;
constexpr int kHoldingsOnly = 2;
constexpr int kMaxKind = 3;

[[noreturn]] void UnknownGroup(std::string_view code) {
    throw BadSearch("there is no group " + Quoted(code));
}

void DemandCodes(const TargetFields& target) {
    if (target.Group.empty()) throw BadSearch("the target names no group");
}

BitSet All(const GroupList& groups, std::size_t stocks) {
    BitSet all(stocks);
    for (const StockGroup& group : groups) all |= group.members;
    return all;
}

BitSet SectorUniverse(const MarketGroups& groups, const TargetFields& target, std::size_t stocks) {
    DemandCodes(target);
    BitSet universe(stocks);
    for (const std::string& code : target.Group) {
        if (code == kAllSectors) return BitSet(stocks, true);
        const StockGroup* group = groups.Find(code);
        if (!group) UnknownGroup(code);
        universe |= group->members;
    }
    return universe;
}

BitSet InterestUniverse(const UserGroups& user, const TargetFields& target, std::size_t stocks) {
    DemandCodes(target);
    BitSet universe(stocks);
    for (const std::string& code : target.Group) {
        if (code == kAllGroups) return All(user.interests, stocks);
        const StockGroup* group = FindGroup(user.interests, code);
        if (!group) UnknownGroup(code);
        universe |= group->members;
    }
    return universe;
}

BitSet PortfolioUniverse(const UserGroups& user, const TargetFields& target, std::size_t stocks) {
    BitSet universe(stocks);
    if (target.Portfolio != kHoldingsOnly) universe |= InterestUniverse(user, target, stocks);
    if (target.Portfolio != kInterestsOnly) {
        const Account* account = user.FindAccount(target.Acc);
        if (!account) throw BadSearch("there is no account " + Quoted(target.Acc));
        universe |= account->holdings;
    }
    return target.Except10 ? ~universe : universe;
}

BitSet RecommendUniverse(const UserGroups& user, const TargetFields& target, std::size_t stocks) {
    DemandCodes(target);
    BitSet universe(stocks);
    for (const std::string& code : target.Group) {
        if (code == kAllGroups) {
            universe |= All(user.themes, stocks);
            continue;
        }
        const StockGroup* group = FindGroup(code.starts_with('9') ? user.news : user.themes, code);
        if (!group) UnknownGroup(code);
        universe |= group->members;
    }
    return universe;
}

BitSet ChosenStocks(const MarketGroups& groups, const UserGroups& user, const TargetFields& target,
                    std::size_t stocks) {
    if (target.Upjong == 1) return SectorUniverse(groups, target, stocks);
    if (target.Recommend > 0 && target.Recommend <= kMaxKind) return RecommendUniverse(user, target, stocks);
    if (target.Portfolio > 0 && target.Portfolio <= kMaxKind) return PortfolioUniverse(user, target, stocks);
    throw BadSearch("the target has no universe");
}

bool IsExcluded(const Market& market, std::size_t stock, const TargetFields& target) {
    const Instrument& known = market.Instruments()[stock];
    return (target.Except1 && known.Is(Status::Administrative)) ||
           (target.Except2 && known.Is(Status::Alert)) || (target.Except4 && known.Is(Status::Preferred)) ||
           (target.Except5 && known.Is(Status::NoCollateral)) ||
           (target.Except6 && known.Is(Status::FullMargin)) ||
           (target.Except7 && DayValue(market, market::PriceField::Volume, stock) == 0) ||
           (target.Month && known.settlementMonth != target.Month);
}

}  // namespace

std::string Quoted(std::string_view bytes) {
    std::string text(bytes);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return '"' + text + '"';
}

BitSet BuildUniverse(const Market& market, const MarketGroups& groups, const UserGroups& user,
                     const TargetFields& target) {
    if (target.Month < 0 || target.Month > 12) throw BadSearch("the settlement month is not from 0 to 12");
    BitSet universe = ChosenStocks(groups, user, target, market.Instruments().size());
    for (std::size_t stock = 0; stock < universe.Size(); ++stock)
        if (!IsTraded(market, stock) || IsExcluded(market, stock, target)) universe.Set(stock, false);
    return universe;
}

BitSet Narrow(const Market& market, BitSet universe, Scope scope, const std::vector<std::string>& codes) {
    if (scope == Scope::Whole) return universe;
    BitSet earlier(universe.Size());
    for (const std::string& code : codes) {
        const int stock = market.Find(code);
        if (stock >= 0) earlier.Set(static_cast<std::size_t>(stock));
    }
    return universe &= scope == Scope::Within ? earlier : ~earlier;
}

}  // namespace jogeon::engine
