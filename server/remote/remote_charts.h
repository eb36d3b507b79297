// Charts of the service of another process.
#pragma once

#include "server/remote/remote_service.h"

namespace jogeon::remote {

class RemoteCharts : public service::Charts {
public:
    explicit RemoteCharts(RemoteService::Connection& connection)
        : connection_(connection) {}  // which outlives this

    std::optional<service::StockBars> Bars(const std::string& code, market::Timeframe timeframe) override;

    // Waits as long as for a search.
    std::vector<int> TrueDays(const std::string& user, const std::string& conditionSet,
                              const std::string& code) override;

private:
    RemoteService::Connection& connection_;
};

}  // namespace jogeon::remote
