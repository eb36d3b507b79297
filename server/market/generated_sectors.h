// The sectors of the generated market and how their stocks behave.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace jogeon::market {

struct Sector {
    std::string_view industry;
    int weight;                                // its share of the companies, in parts of all weights
    double kosdaq;                             // the part of them on KOSDAQ
    double beta;                               // how far it goes with the market
    double volatility;                         // of a day, of the sector itself, as a part of the price
    double debtRatio;                          // typical, in percent of equity
    std::array<std::string_view, 4> suffixes;  // of company names
};

std::span<const Sector> Sectors();

// The one that holds nothing but companies for acquisitions (SPAC), without a business of their own.
inline constexpr std::string_view kSpacIndustry = "금융 지원 서비스업";

}  // namespace jogeon::market
