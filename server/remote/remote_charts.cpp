#include "server/remote/remote_charts.h"

#include "server/remote/connection.h"

namespace jogeon::remote {
namespace {

using Stub = ChartService::Stub;

// A reply whose lists aren't in step is another program's.
void DemandInStep(bool inStep) {
    if (!inStep) throw RemoteError("the server's answer can't be read");
}

service::StockBars Read(const BarsReply& reply) {
    const int count = reply.dates_size();
    for (int size : {reply.opens_size(), reply.highs_size(), reply.lows_size(), reply.closes_size(),
                     reply.volumes_size(), reply.after_gap_size()})
        DemandInStep(size == count);
    service::StockBars stock{reply.name(), {}};
    stock.bars.reserve(static_cast<std::size_t>(count));
    for (int bar = 0; bar < count; ++bar)
        stock.bars.push_back({reply.dates(bar), reply.opens(bar), reply.highs(bar), reply.lows(bar),
                              reply.closes(bar), reply.volumes(bar), reply.after_gap(bar)});
    return stock;
}

}  // namespace

std::optional<service::StockBars> RemoteCharts::Bars(const std::string& code, market::Timeframe timeframe) {
    BarsRequest asked;
    asked.set_code(code);
    asked.set_timeframe(static_cast<std::uint32_t>(timeframe));
    BarsReply reply;
    connection_.Demand(&Stub::Bars, asked, reply);
    if (!reply.known()) return std::nullopt;
    return Read(reply);
}

std::vector<int> RemoteCharts::TrueDays(const std::string& user, const std::string& conditionSet,
                                        const std::string& code) {
    TrueDaysRequest asked;
    asked.set_user(user);
    asked.set_condition_set(conditionSet);
    asked.set_code(code);
    TrueDaysReply reply;
    connection_.Demand(&Stub::TrueDays, asked, reply, connection_.settings.handleDeadline);
    return {reply.dates().begin(), reply.dates().end()};
}

}  // namespace jogeon::remote
