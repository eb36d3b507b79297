#include "server/market/generated_market.h"

#include <algorithm>
#include <set>

#include <zlib.h>

#include "screen/text/cp949.h"
#include "server/market/bar.h"
#include "server/market/calendar.h"
#include "server/market/tick_size.h"
#include "tests/server/market/market_values.h"

namespace jogeon::market {
namespace {

// The days of one stock that have a bar.
struct History {
    std::vector<int> days;
    std::vector<Bar> bars;
};

const Market& Generated() {
    static const std::shared_ptr<const Market> market = GenerateMarket();
    return *market;
}

History HistoryOf(std::size_t stock) {
    const Bars& days = Generated().BarsOf(Timeframe::Day);
    History history;
    for (int day = 0; day < days.Count(); ++day) {
        const auto at = [&](PriceField field) { return days.Row(field, day)[stock]; };
        if (std::isnan(at(PriceField::Close))) continue;
        history.days.push_back(day);
        history.bars.push_back({at(PriceField::Open), at(PriceField::High), at(PriceField::Low),
                                at(PriceField::Close), at(PriceField::Volume)});
    }
    return history;
}

double Correlation(const std::vector<double>& a, const std::vector<double>& b) {
    const auto mean = [](const std::vector<double>& v) {
        double sum = 0;
        for (const double x : v) sum += x;
        return sum / static_cast<double>(v.size());
    };
    const double meanA = mean(a);
    const double meanB = mean(b);
    double ab = 0, aa = 0, bb = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        ab += (a[i] - meanA) * (b[i] - meanB);
        aa += (a[i] - meanA) * (a[i] - meanA);
        bb += (b[i] - meanB) * (b[i] - meanB);
    }
    return ab / std::sqrt(aa * bb);
}

// Of each value with the one before it.
double SelfCorrelation(const std::vector<double>& values) {
    return Correlation({values.begin(), values.end() - 1}, {values.begin() + 1, values.end()});
}

TEST(GeneratedMarket, IsTheSameEverywhere) {
    // A change of the generator changes this number; nothing else may.
    constexpr unsigned long kDigest = 1180405138;
    unsigned long digest = crc32(0, nullptr, 0);
    const auto add = [&](const void* data, std::size_t size) {
        digest = crc32(digest, static_cast<const Bytef*>(data), static_cast<uInt>(size));
    };
    for (const Instrument& stock : Generated().Instruments()) {
        for (const std::string* text : {&stock.code, &stock.name, &stock.division, &stock.industry})
            add(text->data(), text->size());
        add(&stock.listingDate, sizeof stock.listingDate);
        add(&stock.shares, sizeof stock.shares);
        add(stock.fundamentals.data(), sizeof stock.fundamentals);
        add(stock.status.data(), sizeof stock.status);
    }
    for (const Timeframe timeframe : kEveryTimeframe) {
        const Bars& bars = Generated().BarsOf(timeframe);
        for (int field = 0; field < kPriceFields; ++field)
            for (int bar = 0; bar < bars.Count(); ++bar) {
                const auto row = bars.Row(static_cast<PriceField>(field), bar);
                add(row.data(), row.size_bytes());
            }
    }
    EXPECT_EQ(digest, kDigest);
}

TEST(GeneratedMarket, HasTheDaysAndStocksItPromises) {
    const Market& market = Generated();
    EXPECT_TRUE(market.Generated());
    EXPECT_EQ(market.LastDate(), 20261030);
    const Bars& days = market.BarsOf(Timeframe::Day);
    ASSERT_EQ(days.Count(), 500);
    for (int day = 0; day < days.Count(); ++day) EXPECT_LT(Weekday(days.Date(day)), 5);
    for (const int holiday : {20250101, 20250129, 20251006, 20251225, 20260217})
        for (int day = 0; day < days.Count(); ++day) EXPECT_NE(days.Date(day), holiday);

    ASSERT_EQ(market.Instruments().size(), 2600u);
    std::set<std::string> names;
    std::set<std::string> industries;
    std::array<int, static_cast<std::size_t>(Status::Count)> flagged{};
    int losses = 0, unknown = 0, otherMonths = 0, kosdaq = 0;
    for (const Instrument& stock : market.Instruments()) {
        EXPECT_TRUE(names.insert(stock.name).second) << stock.name;
        EXPECT_TRUE(TryToCp949(stock.name + stock.industry + stock.division)) << stock.name;
        EXPECT_TRUE(IsDate(stock.listingDate));
        EXPECT_EQ(stock.Is(Status::Preferred), stock.code.back() != '0');
        EXPECT_GT(stock.shares, 0);
        industries.insert(stock.industry);
        for (std::size_t i = 0; i < flagged.size(); ++i) flagged[i] += stock.status[i];
        losses += stock.Get(Fundamental::EarningsPerShare) < 0;
        unknown += std::isnan(stock.Get(Fundamental::EarningsPerShare));
        otherMonths += stock.settlementMonth != 12;
        kosdaq += stock.exchange == Exchange::Kosdaq;
    }
    EXPECT_EQ(industries.size(), 25u);
    for (const int count : flagged) EXPECT_GT(count, 25);
    EXPECT_GT(losses, 400);
    EXPECT_GT(unknown, 50);
    EXPECT_GT(otherMonths, 50);
    EXPECT_GT(kosdaq, 1500);
    EXPECT_LT(kosdaq, 1900);
}

TEST(GeneratedMarket, ObeysTicksAndLimits) {
    const auto isPrice = [](double price) {
        const int whole = static_cast<int>(price);
        return price == whole && whole > 0 && whole % TickSize(whole) == 0;
    };
    int halted = 0, atLimit = 0, gaps = 0, shortHistories = 0;
    for (std::size_t stock = 0; stock < Generated().Instruments().size(); ++stock) {
        const History history = HistoryOf(stock);
        const std::string& code = Generated().Instruments()[stock].code;
        ASSERT_FALSE(history.bars.empty()) << code;
        shortHistories += history.bars.size() < 60;
        for (std::size_t i = 0; i < history.bars.size(); ++i) {
            const Bar& bar = history.bars[i];
            ASSERT_TRUE(isPrice(bar.open) && isPrice(bar.high) && isPrice(bar.low) && isPrice(bar.close))
                << code;
            ASSERT_TRUE(bar.low <= std::min(bar.open, bar.close) && bar.high >= std::max(bar.open, bar.close))
                << code;
            ASSERT_TRUE(bar.volume >= 0 && bar.volume == std::floor(bar.volume)) << code;
            if (bar.volume == 0) {
                ASSERT_EQ(bar.high, bar.low) << code;
                ++halted;
            }
            if (i == 0) continue;
            const int before = static_cast<int>(history.bars[i - 1].close);
            ASSERT_LE(bar.high, before * 1.3) << code;
            ASSERT_GE(bar.low, before * 0.7) << code;
            atLimit += bar.close == UpperLimit(before);
            gaps += history.days[i] != history.days[i - 1] + 1;
        }
    }
    EXPECT_GT(halted, 1000);
    EXPECT_GT(atLimit, 100);
    EXPECT_GT(gaps, 10);
    EXPECT_GT(shortHistories, 15);
}

// What tells a market from noise: stocks move together, quiet and wild times last, and so do busy ones.
TEST(GeneratedMarket, MovesLikeAMarket) {
    std::vector<std::vector<double>> returns;
    double clusters = 0, busyness = 0, sizeAndVolume = 0;
    for (std::size_t stock = 0; stock < Generated().Instruments().size(); ++stock) {
        const History history = HistoryOf(stock);
        const bool traded =
            std::all_of(history.bars.begin(), history.bars.end(), [](const Bar& b) { return b.volume > 0; });
        if (history.bars.size() < 500 || !traded) continue;
        std::vector<double> moves, sizes, volumes;
        for (std::size_t i = 1; i < history.bars.size(); ++i) {
            moves.push_back(history.bars[i].close / history.bars[i - 1].close - 1);
            sizes.push_back(std::abs(moves.back()));
            volumes.push_back(std::log(history.bars[i].volume));
        }
        clusters += SelfCorrelation(sizes);
        busyness += SelfCorrelation(volumes);
        sizeAndVolume += Correlation(sizes, volumes);
        returns.push_back(std::move(moves));
    }
    const auto stocks = static_cast<double>(returns.size());
    ASSERT_GT(stocks, 2000);
    double together = 0;
    for (std::size_t i = 1; i < returns.size(); ++i) together += Correlation(returns[i - 1], returns[i]);
    EXPECT_GT(together / stocks, 0.08);
    EXPECT_LT(together / stocks, 0.4);
    EXPECT_GT(clusters / stocks, 0.08);
    EXPECT_GT(busyness / stocks, 0.4);
    EXPECT_GT(sizeAndVolume / stocks, 0.3);
}

}  // namespace
}  // namespace jogeon::market
