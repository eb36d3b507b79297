// Each indicator of the catalogue on every day of a stock, against the whole market cut after that day.
#include "server/engine/true_days.h"

#include <algorithm>
#include <map>

#include "server/indicators/parameters.h"
#include "server/market/random_numbers.h"
#include "tests/server/indicators/bars_of_tests.h"
#include "tests/server/indicators/catalogue_files.h"

namespace jogeon::engine {
namespace {

using indicators::MarketDay;
using market::Fundamental;
using market::RandomNumbers;

constexpr int kStocks = 6;
constexpr int kDays = 330;  // more than are judged at once
constexpr int kStep = 14;   // every so many days are compared, and the last six

market::Instrument StockOf(int number, const std::vector<int>& dates, RandomNumbers& random) {
    market::Instrument stock;
    stock.code = std::to_string(100000 + 10 * number);
    stock.shares = random.Between(1e5, 1e7);
    stock.listingDate = dates[static_cast<std::size_t>(random.Below(20))];
    for (double& figure : stock.fundamentals) figure = random.Between(-20, 60);
    return stock;
}

// Swings enough to make most conditions true now and then; some days and, for one stock in three, the first
// ones are missing.
std::vector<market::Bar> WalkOf(int number, RandomNumbers& random) {
    std::vector<market::Bar> bars;
    double close = random.Between(50, 200);
    for (int day = 0; day < kDays; ++day) {
        const double open = std::max(20.0, close + random.Normal());
        close = std::max(20.0, open + 3 * random.Normal());
        const double high = std::max(open, close) + random.Below(3);
        const double low = std::min(open, close) - random.Below(3);
        const double volume = random.Between(50, 500);
        const bool missing = random.Chance(0.01) || (number % 3 == 0 && day < 150);
        bars.push_back({open, high, low, missing ? 0 : close, volume});
    }
    return bars;
}

std::shared_ptr<const market::Market> SwingingMarket() {
    RandomNumbers random(5, 0);
    const std::vector<int> dates = indicators::Weekdays(kDays);
    market::MarketBuilder builder;
    for (int number = 0; number < kStocks; ++number)
        indicators::AddStock(builder, StockOf(number, dates, random), WalkOf(number, random), dates);
    return builder.Build();
}

class TrueDaysTest : public indicators::CatalogueFiles {
protected:
    TrueDaysTest() {
        const market::Bars& days = market_->BarsOf(market::Timeframe::Day);
        for (int day = 0; day < days.Count(); ++day)
            if (day % kStep == 0 || day > days.Count() - 7)
                earlier_[days.Date(day)] = std::make_unique<MarketDay>(market_->AsOf(days.Date(day)));
    }

    // The condition with its defaults, letter A, on a timeframe where it has one.
    DecodedBlock BlockOf(const CIndexInfo& leaf, int variant, char timeframe) const {
        const auto condition = Fresh(leaf, variant);
        condition->SetValueText(condition->GetValueText());
        DecodedBlock block = *DecodeConditionBlock(BuildConditionBlock(*condition));
        block.letter = 'A';
        if (block.roles.contains(indicators::kTimeframeRole) && block.family != 'F')
            block.roles[indicators::kTimeframeRole] = timeframe;
        if (block.roles.contains(60) && block.family == 'R') block.roles[60] = "2";
        return block;
    }

    // How many of the compared days are true.
    int Compare(const DecodedBlock& condition) {
        const ConditionPlan plan("A", {condition});
        std::map<int, indicators::BitSet> truths;
        for (auto& [date, day] : earlier_) truths.emplace(date, plan.Combine(plan.Judge(*day)).truth);
        int found = 0;
        for (std::size_t stock = 0; stock < kStocks; ++stock) {
            const std::vector<int> days = TrueDays(*market_, static_cast<int>(stock), plan);
            EXPECT_TRUE(std::is_sorted(days.begin(), days.end()));
            for (const auto& [date, truth] : truths) {
                const bool traded = HasBar(date, stock);
                const bool is = std::binary_search(days.begin(), days.end(), date);
                EXPECT_EQ(truth.Get(stock) && traded, is) << "stock " << stock << " on " << date;
                found += is;
            }
        }
        return found;
    }

    bool HasBar(int date, std::size_t stock) {
        const market::Bars& days = earlier_.at(date)->GetMarket().BarsOf(market::Timeframe::Day);
        return !std::isnan(days.Row(market::PriceField::Close, days.Count() - 1)[stock]);
    }

    const std::shared_ptr<const market::Market> market_ = SwingingMarket();
    std::map<int, std::unique_ptr<MarketDay>> earlier_;
};

TEST_F(TrueDaysTest, AreThoseOfTheMarketAsItStoodForEveryIndicatorAndTimeframe) {
    int neverTrue = 0, compared = 0;
    for (const CIndexInfo* leaf : leaves_) {
        const indicators::Indicator& indicator = *indicators::IndicatorOf(*leaf);
        const bool timed = std::count(indicator.roles.begin(), indicator.roles.end(), 20) > 0;
        for (int variant = 0; variant < indicator.variants; ++variant)
            for (const char timeframe : std::string(timed ? "DWM" : "D")) {
                SCOPED_TRACE(std::string(indicator.key) + " " + std::to_string(variant) + timeframe);
                ++compared;
                neverTrue += Compare(BlockOf(*leaf, variant, timeframe)) == 0;
            }
    }
    EXPECT_LT(neverTrue, compared / 2) << "a comparison that finds nothing says little";
}

}  // namespace
}  // namespace jogeon::engine
