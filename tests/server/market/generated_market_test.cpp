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

const Market& Generated() {
    static const std::shared_ptr<const Market> market = GenerateMarket();
    return *market;
}

// The bars of one stock and their days.
std::vector<std::pair<int, Bar>> HistoryOf(std::size_t stock) {
    const Bars& days = Generated().BarsOf(Timeframe::Day);
    std::vector<std::pair<int, Bar>> history;
    for (int day = 0; day < days.Count(); ++day) {
        const auto at = [&](PriceField field) { return days.Row(field, day)[stock]; };
        if (std::isnan(at(PriceField::Close))) continue;
        history.emplace_back(day, Bar{at(PriceField::Open), at(PriceField::High), at(PriceField::Low),
                                      at(PriceField::Close), at(PriceField::Volume)});
    }
    return history;
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
        const auto history = HistoryOf(stock);
        const std::string& code = Generated().Instruments()[stock].code;
        ASSERT_FALSE(history.empty()) << code;
        shortHistories += history.size() < 60;
        for (std::size_t i = 0; i < history.size(); ++i) {
            const auto& [day, bar] = history[i];
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
            const int before = static_cast<int>(history[i - 1].second.close);
            ASSERT_LE(bar.high, before * 1.3) << code;
            ASSERT_GE(bar.low, before * 0.7) << code;
            atLimit += bar.close == UpperLimit(before);
            gaps += day != history[i - 1].first + 1;
        }
    }
    EXPECT_GT(halted, 1000);
    EXPECT_GT(atLimit, 100);
    EXPECT_GT(gaps, 10);
    EXPECT_GT(shortHistories, 15);
}

}  // namespace
}  // namespace jogeon::market
