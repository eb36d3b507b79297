#include "server/market/generated_market.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "server/market/generated_calendar.h"
#include "server/market/generated_companies.h"
#include "server/market/generated_fundamentals.h"
#include "server/market/generated_prices.h"
#include "server/market/market_builder.h"

namespace jogeon::market {
namespace {

constexpr std::uint64_t kSeed = 20261030;
constexpr int kStocks = 2600;
constexpr int kTradingDays = 500;
constexpr int kLastDay = 20261030;

// Streams of random numbers; each stock has those from its number on.
constexpr std::uint64_t kFactorStream = 1;
constexpr std::uint64_t kCompanyStream = 2;
constexpr std::uint64_t kPriceStreams = 1'000;
constexpr std::uint64_t kFigureStreams = 1'000'000;

// What the market and the sector do to a company's stock.
std::vector<double> CommonMoves(const Company& company, const Factors& factors) {
    std::vector<double> moves(factors.market.size());
    const bool kosdaq = company.stock.exchange == Exchange::Kosdaq;
    for (std::size_t day = 0; day < moves.size(); ++day) {
        moves[day] = company.beta * (factors.market[day] + (kosdaq ? factors.kosdaq[day] : 0));
        if (company.sector >= 0) moves[day] += factors.sectors[static_cast<std::size_t>(company.sector)][day];
    }
    return moves;
}

// A preferred stock follows the common one, a little less far.
std::vector<double> MovesOf(const std::vector<GeneratedDay>& common) {
    constexpr double kPart = 0.85;
    std::vector<double> moves(common.size());
    for (std::size_t day = 1; day < common.size(); ++day)
        if (common[day - 1].kind != DayKind::Missing && common[day].kind != DayKind::Missing)
            moves[day] = kPart * (common[day].bar.close / common[day - 1].bar.close - 1);
    return moves;
}

void AddStock(MarketBuilder& builder, const Company& company, const std::vector<GeneratedDay>& days,
              const std::vector<int>& dates) {
    const int number = builder.AddInstrument(company.stock);
    for (std::size_t day = 0; day < days.size(); ++day)
        if (days[day].kind != DayKind::Missing) builder.AddFittedBar(number, dates[day], days[day].bar);
}

}  // namespace

std::shared_ptr<const Market> GenerateMarket() {
    const std::vector<int> dates = TradingDaysUpTo(kLastDay, kTradingDays);
    const Factors factors = MakeFactors(kTradingDays, RandomNumbers(kSeed, kFactorStream));
    std::vector<Company> companies = MakeCompanies(kStocks, dates, RandomNumbers(kSeed, kCompanyStream));

    MarketBuilder builder;
    builder.SetSource("generated");
    builder.SetGenerated(true);
    std::vector<GeneratedDay> days;
    for (std::size_t i = 0; i < companies.size(); ++i) {
        Company& company = companies[i];
        // A preferred stock comes right behind its common one, whose days are the last that were made.
        const std::vector<double> moves =
            company.commonOf >= 0 ? MovesOf(days) : CommonMoves(company, factors);
        days = MakePrices(company.model, moves, RandomNumbers(kSeed, kPriceStreams + i));
        RandomNumbers figures(kSeed, kFigureStreams + i);
        FillFundamentals(company, days.back().bar.close, figures);
        AddStock(builder, company, days, dates);
    }
    return builder.Build();
}

}  // namespace jogeon::market
