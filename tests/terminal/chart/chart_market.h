// A small market for charts: two stocks that swing, one that pauses now and then, and one without a bar.
#pragma once

#include <algorithm>
#include <memory>
#include <string>

#include "server/market/calendar.h"
#include "server/market/market_builder.h"
#include "server/market/random_numbers.h"

namespace jogeon::test {

inline constexpr int kChartDays = 420;
inline constexpr char kSwinging[] = "000010";
inline constexpr char kOther[] = "000020";
inline constexpr char kPausing[] = "000030";
inline constexpr char kEmpty[] = "000040";

inline std::shared_ptr<const market::Market> ChartMarket() {
    market::MarketBuilder builder;
    std::uint64_t stream = 0;
    for (const auto& [code, name] : {std::pair{kSwinging, "가나전자"}, std::pair{kOther, "가나전자우"},
                                     std::pair{kPausing, "다라제약"}, std::pair{kEmpty, "마바상사"}}) {
        market::Instrument stock;
        stock.code = code;
        stock.name = name;
        const int number = builder.AddInstrument(stock);
        market::RandomNumbers random(3, ++stream);
        double close = 10'000;
        for (int day = 0; day < kChartDays && std::string(code) != kEmpty; ++day) {
            const double open = close;
            close = std::max(1'000.0, open + 150 * random.Normal());
            const double high = std::max(open, close) + random.Below(80);
            const double low = std::min(open, close) - random.Below(80);
            // Five days of a week; the pausing stock comes late and lacks two weeks and some days.
            const int date = market::DateOfDay(market::DayNumber(20240101) + day / 5 * 7 + day % 5);
            const bool pause = day < 100 || (day >= 300 && day < 310) || random.Chance(0.01);
            if (std::string(code) == kPausing && pause && day != kChartDays - 1) continue;
            builder.AddBar(number, date, open, high, low, close, random.Between(100, 9'999));
        }
    }
    return builder.Build();
}

}  // namespace jogeon::test
