// What a terminal or a tool needs of the service, wherever it runs.
//
// Callable from several threads at once. Texts are CP949.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "server/service/charts.h"
#include "server/service/portfolios.h"
#include "server/service/request.h"
#include "server/service/watches.h"

namespace jogeon::service {

// What a window says of the market that is served.
struct MarketSummary {
    std::string source;  // where it comes from, UTF-8
    bool generated = false;
    int stocks = 0;
    int lastDate = 0;  // yyyymmdd, 0 for a market without bars

    friend bool operator==(const MarketSummary&, const MarketSummary&) = default;
};

class Service {
public:
    virtual ~Service() = default;

    // The payload of the reply; empty for a request that has none.
    virtual std::string Handle(const Request& request) = 0;

    // Fills the array of every class that is a key of `lists`: a three-byte code, a blank and the name. A
    // class that the service doesn't have gets no line. False, with the arrays empty, when the lists can't be
    // had.
    virtual bool FillCodeLists(const std::string& user,
                               std::map<std::string, std::vector<std::string>>& lists) = 0;

    // The numbers of the user's accounts, eleven digits each. Throws std::runtime_error when the service
    // can't tell.
    virtual std::vector<std::string> Accounts(const std::string& user) = 0;

    // The name of the stock with this six-byte code; empty if it is unknown.
    virtual std::string StockName(const std::string& code) = 0;

    // Throws std::runtime_error when the service can't tell.
    virtual MarketSummary Market() = 0;

    // What lives as long as the service and is asked for apart: the users' interest groups and holdings, the
    // bars of stocks, the sets that are watched.
    virtual Portfolios& GetPortfolios() = 0;
    virtual Charts& GetCharts() = 0;
    virtual Watches& GetWatches() = 0;

    // The asker goes away: calls under way end soon where they can, and calls to come may fail.
    virtual void GiveUpCalls() {}
};

}  // namespace jogeon::service
