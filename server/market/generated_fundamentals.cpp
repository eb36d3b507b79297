#include "server/market/generated_fundamentals.h"

#include <algorithm>
#include <cmath>

#include "server/market/generated_sectors.h"

namespace jogeon::market {
namespace {

constexpr double kLossPart = 0.26;
constexpr double kUnknownPart = 0.02;  // of each figure

// To two decimals, as such figures are printed.
double Percent(double value) {
    return std::round(value * 100) / 100;
}

}  // namespace

void FillFundamentals(Company& company, double price, RandomNumbers& random) {
    if (company.sector < 0) return;
    const Sector& sector = Sectors()[static_cast<std::size_t>(company.sector)];
    const bool loss = random.Chance(kLossPart);
    const double bookValue = std::max(1.0, std::round(price / RoughExp(0.15 + 0.6 * random.Normal())));
    const double yield =
        (loss ? -0.10 : 0.09) * RoughExp(0.7 * random.Normal());  // earnings on the book value
    const double earnings = std::round(bookValue * std::max(yield, -0.9));
    const bool pays = !loss && random.Chance(0.65);

    const auto put = [&](Fundamental figure, double value) {
        if (!random.Chance(kUnknownPart))
            company.stock.fundamentals[static_cast<std::size_t>(figure)] = value;
    };
    put(Fundamental::EarningsPerShare, earnings);
    put(Fundamental::BookValuePerShare, bookValue);
    put(Fundamental::SalesGrowth, Percent(4 + 60 * yield + 16 * random.Normal()));
    put(Fundamental::OperatingMargin, Percent(std::max(-95.0, 75 * yield + 3 * random.Normal())));
    put(Fundamental::ReturnOnEquity, Percent(100 * earnings / bookValue));
    put(Fundamental::DebtRatio, Percent(sector.debtRatio * RoughExp(0.6 * random.Normal())));
    put(Fundamental::DividendYield,
        pays ? Percent(std::min(1.8 * RoughExp(0.5 * random.Normal()), 9.0)) : 0.0);
}

}  // namespace jogeon::market
