#include "server/indicators/ranking.h"

#include <algorithm>
#include <cmath>

namespace jogeon::indicators {

namespace {

constexpr int kFirstRankOfFigures = 2;  // the variants "the highest n" and "the lowest n" of family F

}  // namespace

bool RanksStocks(const DecodedBlock& condition) {
    return condition.family == 'R' || (condition.family == 'F' && condition.mode >= kFirstRankOfFigures);
}

Column RanksOf(const Column& values, bool highestFirst) {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < values.size(); ++i)
        if (!std::isnan(values[i])) order.push_back(i);
    // Instruments stand in order of code, which the stable sort keeps.
    std::stable_sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        return highestFirst ? values[left] > values[right] : values[left] < values[right];
    });
    Column ranks(values.size(), kMissing);
    for (std::size_t place = 0; place < order.size(); ++place)
        ranks[order[place]] = static_cast<double>(place + 1);
    return ranks;
}

}  // namespace jogeon::indicators
