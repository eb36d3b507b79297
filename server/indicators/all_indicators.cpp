#include <algorithm>
#include <vector>

#include "server/indicators/families.h"

namespace jogeon::indicators {

namespace {

std::vector<Indicator> Collect() {
    std::vector<Indicator> all;
    for (auto family : {MovingAverageIndicators, OscillatorIndicators, MacdIndicators, TrendIndicators,
                        VolumeFlowIndicators, PriceIndicators, TradeIndicators, CandleIndicators,
                        FundamentalIndicators, RankIndicators}) {
        const std::span<const Indicator> members = family();
        all.insert(all.end(), members.begin(), members.end());
    }
    return all;
}

}  // namespace

std::span<const Indicator> AllIndicators() {
    static const std::vector<Indicator> all = Collect();
    return all;
}

const Indicator* FindIndicator(std::string_view key) {
    const std::span<const Indicator> all = AllIndicators();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Indicator& one) { return one.key == key; });
    return found == all.end() ? nullptr : &*found;
}

}  // namespace jogeon::indicators
