#include "server/service/example_portfolio.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "screen/text/bytes.h"
#include "server/engine/last_day.h"
#include "server/service/portfolio_rules.h"

namespace jogeon::service {
namespace {

using engine::DayValue;
using market::Market;
using market::PriceField;

using Ranking = std::vector<std::size_t>;  // stocks, the first one first

constexpr std::size_t kExampleSize = 30;
constexpr double kLowPrice = 1000;    // won
constexpr double kStake = 3'000'000;  // won, about what each holding cost
constexpr int kDaysOfBuying = 60;     // over which it was bought, a little every day

// `ranked` in order of the last day's turnover, the largest first.
Ranking ByTurnover(const Market& market, Ranking ranked) {
    std::vector<double> turnover(market.Instruments().size());  // beforehand, as sorting asks again and again
    for (std::size_t stock : ranked)
        turnover[stock] =
            DayValue(market, PriceField::Close, stock) * DayValue(market, PriceField::Volume, stock);
    std::stable_sort(ranked.begin(), ranked.end(),
                     [&](std::size_t a, std::size_t b) { return turnover[a] > turnover[b]; });
    return ranked;
}

Ranking LowPriced(const Market& market) {
    Ranking low;
    for (std::size_t stock = 0; stock < market.Instruments().size(); ++stock)
        if (DayValue(market, PriceField::Close, stock) < kLowPrice) low.push_back(stock);
    return low;
}

std::vector<std::string> CodesOf(const Market& market, const Ranking& stocks, std::size_t most) {
    std::vector<std::string> codes;
    for (std::size_t i = 0; i < std::min(most, stocks.size()); ++i)
        codes.push_back(market.Instruments()[stocks[i]].code);
    return codes;
}

std::vector<store::Holding> Bought(const Market& market, const Ranking& ranked,
                                   std::initializer_list<std::size_t> places) {
    std::vector<store::Holding> holdings;
    for (std::size_t place : places) {
        if (place >= ranked.size()) continue;
        const std::size_t stock = ranked[place];
        const double price =
            std::max(1.0, std::round(engine::MeanOfDays(market, PriceField::Close, stock, kDaysOfBuying)));
        const auto quantity = static_cast<std::int64_t>(std::max(1.0, kStake / price));
        holdings.push_back({market.Instruments()[stock].code, quantity, price});
    }
    return holdings;
}

// The middle four digits are the user's own.
std::string BranchOf(const std::string& user) {
    unsigned number = 0;
    for (char c : user) number = number * 31 + static_cast<unsigned char>(c);
    return "1001" + ZeroPadded(static_cast<int>(number % 10000), 4);
}

}  // namespace

store::Portfolio ExamplePortfolio(const Market& market, const std::string& user) {
    const Ranking ranked = engine::StocksBySize(market);
    const std::string branch = BranchOf(user);
    store::Portfolio portfolio;
    portfolio.groups = {{"501", "대형주", CodesOf(market, ranked, kExampleSize)},
                        {"502", "거래대금 상위", CodesOf(market, ByTurnover(market, ranked), kExampleSize)},
                        {"503", "저가주", CodesOf(market, LowPriced(market), kMostStocks)}};
    portfolio.accounts = {{branch + "101", Bought(market, ranked, {0, 2, 5, 11, 23})},
                          {branch + "201", Bought(market, ranked, {40, 90, 150, 300, 700, 1200})}};
    portfolio.lastGroup = static_cast<int>(portfolio.groups.size());
    return portfolio;
}

std::shared_ptr<store::PortfolioStore> OpenPortfolios(std::shared_ptr<const Market> market,
                                                      const std::filesystem::path& file) {
    return std::make_shared<store::PortfolioStore>(
        file,
        [market = std::move(market)](const std::string& user) { return ExamplePortfolio(*market, user); });
}

}  // namespace jogeon::service
