#include "server/market/generated_factors.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "server/market/generated_sectors.h"

namespace jogeon::market {
namespace {

// A time in which the market has a direction.
struct Regime {
    double drift;       // of a day
    double volatility;  // of a day
    double end;         // the chance that it ends on a day
};

constexpr Regime kRegimes[] = {
    {0.0016, 0.0080, 1.0 / 70},   // rising
    {0.0001, 0.0070, 1.0 / 45},   // quiet
    {-0.0022, 0.0140, 1.0 / 35},  // falling
};

std::vector<double> MakeMarket(int days, RandomNumbers& random) {
    std::vector<double> returns;
    const Regime* regime = &kRegimes[1];
    Volatility volatility(1);
    for (int day = 0; day < days; ++day) {
        if (random.Chance(regime->end)) regime = &kRegimes[random.Below(std::size(kRegimes))];
        const double surprise = volatility.Deviation() * random.Normal();
        volatility.Learn(surprise);
        returns.push_back(regime->drift + regime->volatility * surprise);
    }
    return returns;
}

// Moves around a trend that turns slowly.
std::vector<double> MakeTrending(int days, double deviation, RandomNumbers& random) {
    constexpr double kTrendMemory = 0.97;
    constexpr double kTrendStep = 0.035;
    std::vector<double> returns;
    double trend = 0;
    Volatility volatility(deviation);
    for (int day = 0; day < days; ++day) {
        trend = kTrendMemory * trend + kTrendStep * deviation * random.Normal();
        const double surprise = volatility.Deviation() * random.Normal();
        volatility.Learn(surprise);
        returns.push_back(trend + surprise);
    }
    return returns;
}

}  // namespace

double Volatility::Deviation() const {
    return std::sqrt(variance_);
}

void Volatility::Learn(double surprise) {
    constexpr double kNews = 0.18;
    constexpr double kMemory = 0.79;
    constexpr double kMost = 12;  // times the typical variance
    variance_ = (1 - kNews - kMemory) * typical_ + kNews * surprise * surprise + kMemory * variance_;
    variance_ = std::min(variance_, kMost * typical_);
}

Factors MakeFactors(int days, RandomNumbers random) {
    constexpr double kKosdaqVolatility = 0.004;
    Factors factors;
    factors.market = MakeMarket(days, random);
    factors.kosdaq = MakeTrending(days, kKosdaqVolatility, random);
    for (const Sector& sector : Sectors())
        factors.sectors.push_back(MakeTrending(days, sector.volatility, random));
    return factors;
}

}  // namespace jogeon::market
