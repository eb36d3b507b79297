// What moves all stocks of the generated market, or all of a sector: a return for each day.
//
// The market goes through rising, falling and quiet times; volatility comes in clusters; sectors have trends
// of their own.
#pragma once

#include <vector>

#include "server/market/random_numbers.h"

namespace jogeon::market {

// The volatility of a series, which large moves raise and quiet days let fall: GARCH(1,1).
class Volatility {
public:
    // `typical` deviation of a day, as a part of the price.
    explicit Volatility(double typical) : typical_(typical * typical), variance_(typical_) {}

    double Deviation() const;

    // Takes in the day's move that wasn't foreseen.
    void Learn(double surprise);

private:
    double typical_;
    double variance_;
};

struct Factors {
    std::vector<double> market;
    std::vector<double> kosdaq;                // on top of the market, for KOSDAQ only
    std::vector<std::vector<double>> sectors;  // on top of both
};

Factors MakeFactors(int days, RandomNumbers random);

}  // namespace jogeon::market
