// An indicator: from a condition's parameters and a market day to a verdict on every stock.
//
// What an indicator may look at is the unbroken run of known bars that ends at the bar it evaluates: a gap in
// a stock's bars ends its history. A stock whose run is too short gets no verdict: it is unknown.
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "screen/transactions/condition_block.h"
#include "server/indicators/bit_set.h"
#include "server/indicators/market_day.h"

namespace jogeon::indicators {

// True and known, one bit per instrument; a bit of `truth` is set only where `known` is.
struct Verdict {
    BitSet truth;
    BitSet known;
    std::vector<double> value;  // the indicator's value per instrument, kMissing where unknown
};

// A condition whose parameters make no sense, in one line.
class BadCondition : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Indicator {
    std::string_view key;        // the first six characters of its catalogue key
    char family;                 // 'T', 'B', 'P', 'F' or 'R'
    int number;                  // its number in the catalogue; a variant adds its index to it
    int variants;                // 1 without a selector
    int decimals;                // digits behind the point when its value is shown
    std::span<const int> roles;  // the value roles it reads, in ascending order
    std::string_view formula;    // what it computes, and the formula's source

    // Throws BadCondition.
    Verdict (*evaluate)(MarketDay& day, const DecodedBlock& condition);
};

std::span<const Indicator> AllIndicators();

// The indicator of a six-character key, null if there is none.
const Indicator* FindIndicator(std::string_view key);

}  // namespace jogeon::indicators
