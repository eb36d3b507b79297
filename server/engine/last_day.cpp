#include "server/engine/last_day.h"

#include <algorithm>
#include <cmath>

namespace jogeon::engine {
namespace {

using market::kMissing;
using market::Market;
using market::PriceField;

constexpr int kTurnoverDays = 60;

struct Size {
    bool valued;
    double amount;  // won; -1 where neither value nor turnover is known
};

Size SizeOf(const Market& market, std::size_t stock) {
    const double value = MarketValue(market, stock);
    if (!std::isnan(value)) return {true, value};
    const double turnover = MeanOfDays(market, PriceField::Volume, stock, kTurnoverDays) *
                            DayValue(market, PriceField::Close, stock);
    return {false, std::isnan(turnover) ? -1 : turnover};
}

}  // namespace

double DayValue(const Market& market, PriceField field, std::size_t stock, int daysAgo) {
    const market::Bars& days = market.BarsOf(market::Timeframe::Day);
    const int bar = days.Count() - 1 - daysAgo;
    return bar < 0 ? kMissing : days.Row(field, bar)[stock];
}

bool IsTraded(const Market& market, std::size_t stock) {
    return !std::isnan(DayValue(market, PriceField::Close, stock));
}

double MarketValue(const Market& market, std::size_t stock) {
    return market.Instruments()[stock].shares * DayValue(market, PriceField::Close, stock);
}

double MeanOfDays(const Market& market, PriceField field, std::size_t stock, int days) {
    const int reach = std::min(days, market.BarsOf(market::Timeframe::Day).Count());
    double sum = 0;
    int known = 0;
    for (int ago = 0; ago < reach; ++ago) {
        const double value = DayValue(market, field, stock, ago);
        if (std::isnan(value)) continue;
        sum += value;
        ++known;
    }
    return known ? sum / known : kMissing;
}

std::vector<std::size_t> StocksBySize(const Market& market) {
    std::vector<std::size_t> order;
    std::vector<Size> sizes(market.Instruments().size());
    for (std::size_t stock = 0; stock < sizes.size(); ++stock) {
        if (!IsTraded(market, stock)) continue;
        sizes[stock] = SizeOf(market, stock);
        order.push_back(stock);
    }
    std::stable_sort(order.begin(), order.end(), [&sizes](std::size_t a, std::size_t b) {
        if (sizes[a].valued != sizes[b].valued) return sizes[a].valued;
        return sizes[a].amount > sizes[b].amount;
    });
    return order;
}

}  // namespace jogeon::engine
