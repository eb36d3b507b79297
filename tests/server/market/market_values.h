// Reads and compares markets in tests.
#pragma once

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "server/market/market.h"

namespace jogeon::market {

inline constexpr Timeframe kEveryTimeframe[] = {Timeframe::Day, Timeframe::Week, Timeframe::Month};

// Open, high, low, close and volume of one bar; "-" for a missing one.
inline std::string BarText(const Market& market, Timeframe timeframe, std::string_view code, int bar) {
    const Bars& bars = market.BarsOf(timeframe);
    const auto stock = static_cast<std::size_t>(market.Find(code));
    std::string text;
    int missing = 0;
    for (int field = 0; field < kPriceFields; ++field) {
        const double value = bars.Row(static_cast<PriceField>(field), bar)[stock];
        if (std::isnan(value)) ++missing;
        if (field > 0) text += ' ';
        text += std::to_string(std::llround(std::isnan(value) ? 0 : value));
    }
    if (missing == kPriceFields) return "-";
    return missing == 0 ? text : "partly missing: " + text;
}

// All bars of a stock, each with its date.
inline std::vector<std::string> BarTexts(const Market& market, Timeframe timeframe, std::string_view code) {
    std::vector<std::string> texts;
    for (int bar = 0; bar < market.BarsOf(timeframe).Count(); ++bar)
        texts.push_back(std::to_string(market.BarsOf(timeframe).Date(bar)) + ": " +
                        BarText(market, timeframe, code, bar));
    return texts;
}

inline void ExpectSameBars(const Market& a, const Market& b) {
    for (const Timeframe timeframe : kEveryTimeframe) {
        const Bars& left = a.BarsOf(timeframe);
        const Bars& right = b.BarsOf(timeframe);
        ASSERT_EQ(left.Count(), right.Count());
        ASSERT_EQ(left.Instruments(), right.Instruments());
        for (int bar = 0; bar < left.Count(); ++bar) {
            ASSERT_EQ(left.Date(bar), right.Date(bar));
            for (int field = 0; field < kPriceFields; ++field) {
                const auto row = left.Row(static_cast<PriceField>(field), bar);
                const auto other = right.Row(static_cast<PriceField>(field), bar);
                ASSERT_EQ(row.size(), other.size());
                for (std::size_t i = 0; i < row.size(); ++i)
                    ASSERT_TRUE(row[i] == other[i] || (std::isnan(row[i]) && std::isnan(other[i])))
                        << "timeframe " << static_cast<int>(timeframe) << ", field " << field << ", "
                        << left.Date(bar) << ", stock " << i;
            }
        }
    }
}

// What a MarketError says that `action` throws; empty when it throws none.
template <typename Action>
std::string ErrorOf(Action action) {
    try {
        action();
    } catch (const MarketError& error) {
        EXPECT_EQ(std::string_view(error.what()).find('\n'), std::string_view::npos) << "more than one line";
        return error.what();
    }
    return {};
}

}  // namespace jogeon::market
