#include "server/engine/market_groups.h"

#include <algorithm>
#include <initializer_list>
#include <span>

#include "screen/text/bytes.h"
#include "server/engine/last_day.h"
#include "server/engine/sectors.h"

namespace jogeon::engine {
namespace {

using market::Exchange;
using market::Instrument;
using market::Market;
using market::Status;

std::string GroupCode(char first, int number) {
    return first + ZeroPadded(number, 2);
}

GroupList SectorGroups(const Market& market, Exchange exchange, char first) {
    const std::vector<Instrument>& stocks = market.Instruments();
    GroupList groups;
    for (const Sector& sector : AllSectors())
        groups.push_back({GroupCode(first, static_cast<int>(groups.size()) + 1), std::string(sector.name),
                          indicators::BitSet(stocks.size())});
    for (std::size_t i = 0; i < stocks.size(); ++i)
        if (stocks[i].exchange == exchange)
            groups[static_cast<std::size_t>(SectorOf(stocks[i].industry))].members.Set(i);
    std::erase_if(groups, [](const StockGroup& group) { return group.members.Count() == 0; });
    return groups;
}

// What an index takes: ordinary shares that the exchange has no warning about.
bool FitForIndex(const Instrument& stock) {
    return !stock.Is(Status::Preferred) && !stock.Is(Status::Administrative) && !stock.Is(Status::Alert);
}

// "KOSPI200 1~50위"
std::string NameOfPlaces(const std::string& index, std::size_t first, std::size_t last) {
    std::string name = index;
    return name.append(" ")
        .append(std::to_string(first))
        .append("~")
        .append(std::to_string(last))
        .append("위");
}

// Groups of the stocks of `ranked` up to each of `steps` from the one before: with 50 and 100, places 1 to 50
// and 51 to 100. A step that no stock reaches has no group.
GroupList RankGroups(std::span<const std::size_t> ranked, std::size_t stocks, const std::string& name,
                     char first, std::initializer_list<std::size_t> steps) {
    GroupList groups;
    std::size_t begin = 0;
    for (std::size_t step : steps) {
        const std::size_t end = std::min(step, ranked.size());
        if (begin >= end) break;
        groups.push_back({GroupCode(first, static_cast<int>(groups.size()) + 1),
                          NameOfPlaces(name, begin + 1, step), indicators::BitSet(stocks)});
        for (std::size_t place = begin; place < end; ++place) groups.back().members.Set(ranked[place]);
        begin = end;
    }
    return groups;
}

std::vector<std::size_t> OfExchange(const Market& market, const std::vector<std::size_t>& ranked,
                                    Exchange exchange) {
    std::vector<std::size_t> some;
    std::copy_if(ranked.begin(), ranked.end(), std::back_inserter(some),
                 [&](std::size_t stock) { return market.Instruments()[stock].exchange == exchange; });
    return some;
}

}  // namespace

const StockGroup* MarketGroups::Find(std::string_view code) const {
    for (const GroupList* list : {&kospi, &kosdaq, &kospi200, &kostar, &krx100})
        if (const StockGroup* group = FindGroup(*list, code)) return group;
    return nullptr;
}

MarketGroups BuildMarketGroups(const Market& market) {
    std::vector<std::size_t> ranked = StocksBySize(market);
    std::erase_if(ranked, [&](std::size_t stock) { return !FitForIndex(market.Instruments()[stock]); });
    const std::size_t stocks = market.Instruments().size();
    MarketGroups groups;
    groups.kospi = SectorGroups(market, Exchange::Kospi, '0');
    groups.kosdaq = SectorGroups(market, Exchange::Kosdaq, '1');
    groups.kospi200 =
        RankGroups(OfExchange(market, ranked, Exchange::Kospi), stocks, "KOSPI200", '2', {50, 100, 200});
    groups.kostar = RankGroups(OfExchange(market, ranked, Exchange::Kosdaq), stocks, "KOSTAR", '3', {10, 30});
    groups.krx100 = RankGroups(ranked, stocks, "KRX100", '4', {50, 100});
    return groups;
}

}  // namespace jogeon::engine
