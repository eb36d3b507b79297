// The stocks that a search runs over, from its target.
//
// Relies on the groups of the market and of the user; a code that neither of them has is an error that the
// user can mend by choosing his target again, so it is never passed over.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "screen/condition/target_fields.h"
#include "server/engine/market_groups.h"
#include "server/engine/user_groups.h"

namespace jogeon::engine {

// A search that makes no sense, in one line.
class BadSearch : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Bytes of a request between quotes, fit for that line: what isn't printable ASCII stands there as '?'.
std::string Quoted(std::string_view bytes);

// What a search starts from: every stock, or the stocks inside or outside an earlier result.
enum class Scope { Whole, Within, Outside };

// The stocks of the target, less its exclusions and those of another settlement month. Only stocks with a bar
// on the market's last day are in any universe. `Except3` has no meaning; `Except10` turns the chosen
// portfolio over and does nothing for another kind of universe. Throws BadSearch.
indicators::BitSet BuildUniverse(const market::Market& market, const MarketGroups& groups,
                                 const UserGroups& user, const TargetFields& target);

// `universe` narrowed by an earlier result's six-byte codes; codes that the market doesn't have are left out.
indicators::BitSet Narrow(const market::Market& market, indicators::BitSet universe, Scope scope,
                          const std::vector<std::string>& codes);

}  // namespace jogeon::engine
