#include "server/remote/chart_calls.h"

namespace jogeon::remote {
namespace {

void Fill(const std::vector<service::ChartBar>& bars, BarsReply& reply) {
    for (const service::ChartBar& bar : bars) {
        reply.add_dates(bar.date);
        reply.add_opens(bar.open);
        reply.add_highs(bar.high);
        reply.add_lows(bar.low);
        reply.add_closes(bar.close);
        reply.add_volumes(bar.volume);
        reply.add_after_gap(bar.afterGap);
    }
}

}  // namespace

grpc::Status ChartCalls::Bars(grpc::ServerContext* context, const BarsRequest* request, BarsReply* reply) {
    return guard_.Answer(*context, [&]() -> grpc::Status {
        if (request->timeframe() >= market::kTimeframes)
            return {grpc::StatusCode::INVALID_ARGUMENT, "there is no such timeframe"};
        const auto timeframe = static_cast<market::Timeframe>(request->timeframe());
        const std::optional<service::StockBars> stock = charts_.Bars(request->code(), timeframe);
        reply->set_known(stock.has_value());
        if (!stock) return grpc::Status::OK;
        reply->set_name(stock->name);
        Fill(stock->bars, *reply);
        return grpc::Status::OK;
    });
}

grpc::Status ChartCalls::TrueDays(grpc::ServerContext* context, const TrueDaysRequest* request,
                                  TrueDaysReply* reply) {
    return guard_.AnswerUser(*context, *request, [&] {
        const std::vector<int> dates =
            charts_.TrueDays(request->user(), request->condition_set(), request->code());
        reply->mutable_dates()->Assign(dates.begin(), dates.end());
        return grpc::Status::OK;
    });
}

}  // namespace jogeon::remote
