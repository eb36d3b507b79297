#include "server/service/local_charts.h"

#include <cmath>
#include <cstddef>

#include "screen/text/cp949.h"
#include "server/engine/true_days.h"
#include "server/engine/universe.h"
#include "server/service/request_reader.h"

namespace jogeon::service {
namespace {

using market::PriceField;

ChartBar BarAt(const market::Bars& bars, int bar, std::size_t stock) {
    const auto value = [&](PriceField field) { return bars.Row(field, bar)[stock]; };
    return {bars.Date(bar),         value(PriceField::Open),  value(PriceField::High),
            value(PriceField::Low), value(PriceField::Close), value(PriceField::Volume),
            /*afterGap=*/false};
}

}  // namespace

std::optional<StockBars> LocalCharts::Bars(const std::string& code, market::Timeframe timeframe) {
    const int found = market_->Find(code);
    if (found < 0) return std::nullopt;
    const auto stock = static_cast<std::size_t>(found);
    const market::Bars& bars = market_->BarsOf(timeframe);
    StockBars known{ToCp949(market_->Instruments()[stock].name), {}};
    bool gap = false;
    for (int bar = 0; bar < bars.Count(); ++bar) {
        if (std::isnan(bars.Row(PriceField::Close, bar)[stock])) {
            gap = !known.bars.empty();
            continue;
        }
        known.bars.push_back(BarAt(bars, bar, stock));
        known.bars.back().afterGap = gap;
        gap = false;
    }
    return known;
}

std::vector<int> LocalCharts::TrueDays(const std::string&, const std::string& conditionSet,
                                       const std::string& code) {
    const engine::SearchOrder order = ReadConditions(conditionSet);
    const int stock = market_->Find(code);
    if (stock < 0) throw engine::BadSearch("there is no stock " + engine::Quoted(code));
    return engine::TrueDays(*market_, stock, {order.expression, order.conditions});
}

}  // namespace jogeon::service
