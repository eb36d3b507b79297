#include "server/engine/news_groups.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "server/engine/last_day.h"

namespace jogeon::engine {
namespace {

using market::kMissing;
using market::Market;
using market::PriceField;
using market::Status;

constexpr std::size_t kSize = 20;
constexpr int kMonth = 20;  // trading days
constexpr int kQuarter = 60;

double Change(const Market& market, std::size_t stock, int days) {
    return DayValue(market, PriceField::Close, stock) / DayValue(market, PriceField::Close, stock, days) - 1;
}

double Turnover(const Market& market, std::size_t stock) {
    return DayValue(market, PriceField::Close, stock) * DayValue(market, PriceField::Volume, stock);
}

// Won that a day's move made or lost: what everybody talks about.
double Excitement(const Market& market, std::size_t stock) {
    return std::abs(Change(market, stock, 1)) * Turnover(market, stock);
}

double DayRise(const Market& market, std::size_t stock) {
    return Change(market, stock, 1);
}

double MonthRise(const Market& market, std::size_t stock) {
    return Change(market, stock, kMonth);
}

double QuarterFall(const Market& market, std::size_t stock) {
    return -Change(market, stock, kQuarter);
}

double Crowding(const Market& market, std::size_t stock) {
    return DayValue(market, PriceField::Volume, stock) /
           MeanOfDays(market, PriceField::Volume, stock, kMonth);
}

// What the exchange gives notice of: halts and stocks under a warning, the largest first.
double Notice(const Market& market, std::size_t stock) {
    const market::Instrument& known = market.Instruments()[stock];
    const bool halted = DayValue(market, PriceField::Volume, stock) == 0;
    const bool warned = known.Is(Status::Administrative) || known.Is(Status::Alert);
    return halted || warned ? MarketValue(market, stock) : kMissing;
}

struct Source {
    std::string_view code;
    std::string_view name;
    double (*weight)(const Market&, std::size_t stock);  // kMissing: not a story
};

constexpr Source kSources[] = {
    {"902", "장중시황", Excitement}, {"903", "인포스탁", DayRise},    {"904", "연합뉴스", MarketValue},
    {"905", "이데일리", MonthRise},  {"906", "머니투데이", Crowding}, {"907", "한경뉴스", QuarterFall},
    {"908", "공시", Notice},
};

struct Story {
    double weight;
    std::size_t stock;
};

indicators::BitSet HeaviestStories(const Market& market, const Source& source) {
    std::vector<Story> stories;
    const std::size_t stocks = market.Instruments().size();
    for (std::size_t stock = 0; stock < stocks; ++stock) {
        const double weight = IsTraded(market, stock) ? source.weight(market, stock) : kMissing;
        if (std::isfinite(weight)) stories.push_back({weight, stock});
    }
    std::stable_sort(stories.begin(), stories.end(),
                     [](const Story& a, const Story& b) { return a.weight > b.weight; });
    stories.resize(std::min(stories.size(), kSize));
    indicators::BitSet heaviest(stocks);
    for (const Story& story : stories) heaviest.Set(story.stock);
    return heaviest;
}

}  // namespace

GroupList ExampleNews(const Market& market) {
    GroupList news;
    for (const Source& source : kSources)
        news.push_back({std::string(source.code), std::string(source.name), HeaviestStories(market, source)});
    return news;
}

}  // namespace jogeon::engine
