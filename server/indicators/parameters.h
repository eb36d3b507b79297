// The parameters of a condition, read from its block and checked.
//
// Numbers are read as the parameter panel reads them: leading digits count, what follows them doesn't.
// Every function throws BadCondition, with one line in Korean (UTF-8), for a parameter that is absent or
// makes no sense.
#pragma once

#include <string>
#include <string_view>

#include "server/indicators/indicator.h"

namespace jogeon::indicators {

inline constexpr int kSelectorRole = 10;
inline constexpr int kTimeframeRole = 20;
inline constexpr int kBarsAgoRole = 30;

class Parameters {
public:
    // Borrows `condition`, whose key must be an indicator's and whose number one of its variants.
    explicit Parameters(const DecodedBlock& condition);

    int Variant() const { return variant_; }
    Timeframe GetTimeframe() const;  // role 20: D, W or M
    int BarsAgo() const;             // role 30: 0 to 99

    // A whole number from `least` to `most`: bars of a window, or a number of stocks.
    int Whole(int role, int least = 1, int most = 9999) const;

    double Number(int role) const;

    // The index of the role's character in `codes`.
    int Choice(int role, std::string_view codes) const;

    // Throws unless `sensible`; `problem` is UTF-8.
    void Require(bool sensible, std::string_view problem) const;

private:
    const std::string& Text(int role) const;
    [[noreturn]] void Fail(std::string_view problem) const;

    const DecodedBlock& condition_;
    int variant_ = 0;
};

// The bar that a condition with the roles 20 and 30 looks at.
struct Place {
    Timeframe timeframe;
    int bar;  // negative where history doesn't reach so far
};
Place PlaceOf(const MarketDay& day, const Parameters& parameters);

// Both ends belong to the range.
struct Range {
    double low;
    double high;
    bool Holds(double value) const { return value >= low && value <= high; }
};

// Roles 60 and 61, the lower end first.
Range RangeOf(const Parameters& parameters);

}  // namespace jogeon::indicators
