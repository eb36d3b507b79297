// One stock of the market: what is known of it beside its bars.
#pragma once

#include <array>
#include <cmath>
#include <limits>
#include <string>

namespace jogeon::market {

inline constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();

enum class Exchange { Kospi, Kosdaq };  // 거래소, 코스닥

// Yearly figures; kMissing where unknown. Money in won.
enum class Fundamental {
    EarningsPerShare,
    BookValuePerShare,
    SalesGrowth,      // percent, against the year before
    OperatingMargin,  // percent of sales
    ReturnOnEquity,   // percent
    DebtRatio,        // percent of equity
    DividendYield,    // percent of the last price
    Count
};

// Why the exchange or the broker treats a stock apart.
enum class Status {
    Administrative,  // 관리종목
    Alert,           // 투자경고/위험, 투자주의환기종목
    Preferred,       // 우선주
    NoCollateral,    // 담보대출불가능종목
    FullMargin,      // 증거금 100% 종목
    Count
};

struct Instrument {
    std::string code;  // six bytes: "005930"
    std::string name;  // UTF-8
    Exchange exchange = Exchange::Kospi;
    std::string division;     // UTF-8, 소속부
    std::string industry;     // UTF-8, empty where unknown
    int settlementMonth = 0;  // 1 to 12, 0 where unknown
    int listingDate = 0;      // yyyymmdd, 0 where unknown
    double shares = kMissing;
    std::array<double, static_cast<std::size_t>(Fundamental::Count)> fundamentals = MissingFundamentals();
    std::array<bool, static_cast<std::size_t>(Status::Count)> status{};

    double Get(Fundamental figure) const { return fundamentals[static_cast<std::size_t>(figure)]; }
    bool Is(Status which) const { return status[static_cast<std::size_t>(which)]; }

private:
    static std::array<double, static_cast<std::size_t>(Fundamental::Count)> MissingFundamentals() {
        std::array<double, static_cast<std::size_t>(Fundamental::Count)> all;
        all.fill(kMissing);
        return all;
    }
};

}  // namespace jogeon::market
