#include "server/market/market.h"

#include <algorithm>

namespace jogeon::market {

int Market::Find(std::string_view code) const {
    const std::vector<Instrument>& all = Instruments();
    const auto found = std::lower_bound(
        all.begin(), all.end(), code,
        [](const Instrument& instrument, std::string_view wanted) { return instrument.code < wanted; });
    return found != all.end() && found->code == code ? static_cast<int>(found - all.begin()) : -1;
}

}  // namespace jogeon::market
