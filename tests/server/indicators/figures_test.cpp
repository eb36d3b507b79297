// Yearly figures, ranks and the listing date, on a market small enough to work out on paper.

#include <cmath>

#include <gtest/gtest.h>

#include "tests/server/indicators/bars_of_tests.h"

namespace jogeon::indicators {

namespace {

using market::Fundamental;
using market::kMissing;

struct Stock {
    const char* code;
    double shares, earnings, book, roe;
    int listed;
    double closeBefore, close, volumeBefore, volume;  // close 0: no bar
};

// The second has losses, the third no figures, the fourth the same figures as the first, the fifth no bar on
// the last day, the sixth no day before.
const Stock kStocks[] = {
    {"000010", 2e8, 1000, 5000, 12, 20240101, 10000, 10500, 100, 300},
    {"000020", 1e8, -50, 0, -3, 20231231, 20000, 19000, 0, 200},
    {"000030", kMissing, kMissing, kMissing, kMissing, 0, 3000, 3000, 50, 25},
    {"000040", 2e8, 1000, 5000, 12, 20240102, 10000, 10500, 100, 300},
    {"000050", 9e8, 100, 900, 20, 20000229, 5000, 0, 100, 0},
    {"000060", 1e6, 250, 21000, 5, 20240102, 0, 2000, 0, 900},
};

std::shared_ptr<const market::Market> SmallMarket() {
    market::MarketBuilder builder;
    for (const Stock& one : kStocks) {
        market::Instrument stock;
        stock.code = one.code;
        stock.shares = one.shares;
        stock.listingDate = one.listed;
        const auto set = [&](Fundamental figure, double value) {
            stock.fundamentals[static_cast<std::size_t>(figure)] = value;
        };
        set(Fundamental::EarningsPerShare, one.earnings);
        set(Fundamental::BookValuePerShare, one.book);
        set(Fundamental::ReturnOnEquity, one.roe);
        set(Fundamental::DebtRatio, 2 * one.roe);
        set(Fundamental::DividendYield, 3 * one.roe);
        set(Fundamental::OperatingMargin, 4 * one.roe);
        set(Fundamental::SalesGrowth, 5 * one.roe);
        std::vector<Bar> bars = Flat({one.closeBefore, one.close});
        bars[0].volume = one.volumeBefore;
        bars[1].volume = one.volume;
        AddStock(builder, stock, bars, Weekdays(2));
    }
    return builder.Build();
}

struct Case {
    const char* key;
    const char* values;
    const char* signs;
};

void Check(const std::vector<Case>& cases) {
    for (const Case& one : cases)
        EXPECT_EQ(Signs(Evaluate(SmallMarket(), one.key, one.values)), one.signs)
            << one.key << ' ' << one.values;
}

TEST(Figures, CompareAndRank) {
    Check({
        // 21,000, 19,000, ?, 21,000, no bar, 20 (억원)
        {"070101", "10^0|50^1|60^19000", "11?1?0"},
        {"070101", "10^0|50^2|60^19000", "01?0?1"},
        {"070101", "10^1|60^20|61^19000", "01?0?1"},
        {"070101", "10^2|60^1", "10?0?0"},  // equal: the lower code comes first
        {"070101", "10^3|61^2", "01?0?1"},
        {"070102", "10^0|50^2|60^10.5", "1??1?1"},  // losses make no multiple: 10.5, -, -, 10.5, -, 8
        {"070102", "10^3|61^1", "0??0?1"},
        {"070103", "10^1|60^2|61^3", "1??1?0"},  // 2.1, -, -, 2.1, -, 0.095
        {"070201", "10^2|60^2", "10?010"},       // figures need no bar: 12, -3, ?, 12, 20, 5
        {"070201", "10^3|61^2", "01?001"},
        {"070204", "10^0|50^1|60^24", "10?110"},
        {"070104", "10^0|50^1|60^36", "10?110"},
        {"070202", "10^0|50^1|60^48", "10?110"},
        {"070203", "10^0|50^1|60^60", "10?110"},
    });
}

TEST(Figures, RankTheLastDay) {
    Check({
        {"080101", "50^1|60^2", "1000?1"},
        {"080101", "50^2|60^2", "0110?0"},
        {"080102", "50^1|60^2", "1100?0"},
        {"080103", "50^1|60^2", "1001??"},  // 5, -5, 0, 5 percent
        {"080103", "50^2|60^1", "0100??"},
        {"080104", "50^1|60^3", "11?1?0"},
        {"080105", "50^1|60^1", "1?00??"},  // 300 percent, nothing to compare with, 50, 300
    });
    const Verdict verdict = Evaluate(SmallMarket(), "080103", "50^1|60^2");
    EXPECT_EQ(verdict.value[1], 4);  // the value shown is the rank
    EXPECT_TRUE(std::isnan(verdict.value[4]));
}

TEST(Figures, CountCalendarDaysSinceTheListing) {
    // The last day is 2024-01-02.
    Check({{"040301", "60^1|61^2", "11?000"},
           {"040301", "60^0|61^0", "00?101"},
           {"040301", "60^8708|61^8708", "00?010"}});
}

}  // namespace

}  // namespace jogeon::indicators
