#include "server/service/portfolios.h"

#include <algorithm>

namespace jogeon::service {
namespace {

constexpr int kMostTries = 20;  // each fails only because another change was made

}  // namespace

Verdict Portfolios::EditStocks(const std::string& user, const std::string& code, const StockEdit& edit) {
    Verdict verdict = Verdict::StocksChanged;
    for (int tries = 0; verdict == Verdict::StocksChanged && tries < kMostTries; ++tries) {
        const std::vector<InterestGroup> groups = Groups(user);
        const auto group = std::find_if(groups.begin(), groups.end(),
                                        [&](const InterestGroup& known) { return known.code == code; });
        if (group == groups.end()) return Verdict::NoSuchGroup;
        std::vector<std::string> stocks = group->stocks;
        edit(stocks);
        verdict = SetStocks(user, code, group->stocks, stocks);
    }
    return verdict;
}

}  // namespace jogeon::service
