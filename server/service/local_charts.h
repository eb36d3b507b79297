// Charts of the market in this process.
#pragma once

#include <memory>

#include "server/service/charts.h"

namespace jogeon::service {

class LocalCharts : public Charts {
public:
    explicit LocalCharts(std::shared_ptr<const market::Market> market) : market_(std::move(market)) {}

    std::optional<StockBars> Bars(const std::string& code, market::Timeframe timeframe) override;
    std::vector<int> TrueDays(const std::string& user, const std::string& conditionSet,
                              const std::string& code) override;

private:
    const std::shared_ptr<const market::Market> market_;
};

}  // namespace jogeon::service
