#include "server/indicators/trading_value.h"

namespace jogeon::indicators {

Column MeanTradingValue(const Bars& bars, int bar, int n) {
    if (bar < n - 1) return ColumnAt(bars, PriceField::Close, -1);
    Column sum(static_cast<std::size_t>(bars.Instruments()));
    for (int b = bar - n + 1; b <= bar; ++b) {
        const auto close = bars.Row(PriceField::Close, b), volume = bars.Row(PriceField::Volume, b);
        for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += close[i] * volume[i];
    }
    for (double& value : sum) value /= n * kHundredMillion;
    return sum;
}

}  // namespace jogeon::indicators
