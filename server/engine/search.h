// A search, from what is asked to the stocks that match.
//
// Relies on the indicators for the verdict of each condition and on Expression for combining them. A search
// that can't be evaluated is refused as a whole: it never gives half a result.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "screen/transactions/condition_block.h"
#include "server/engine/universe.h"
#include "server/indicators/market_day.h"

namespace jogeon::engine {

struct SearchOrder {
    TargetFields target;
    Scope scope = Scope::Whole;
    std::vector<std::string> priorCodes;   // six bytes each; what Within and Outside refer to
    std::string expression;                // compact form
    std::vector<DecodedBlock> conditions;  // in list order; those not in use are passed over
};

// The value of one condition for each match.
struct ValueColumn {
    char letter;
    int decimals;
    std::vector<double> values;  // parallel to the matches, kMissing where unknown
};

struct SearchResult {
    std::vector<std::uint32_t> matches;  // numbers of instruments, in order of code
    std::vector<ValueColumn> values;     // of the conditions that show theirs, in list order
};

// Throws BadSearch for an expression that is none, for one of its letters without a condition, for a letter
// given twice and for an unknown indicator; indicators::BadCondition for parameters that make no sense.
SearchResult Search(indicators::MarketDay& day, const MarketGroups& groups, const UserGroups& user,
                    const SearchOrder& order);

}  // namespace jogeon::engine
