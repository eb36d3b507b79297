// The calls of charts over a connection, each turned into one of a service.
#pragma once

#include "server/remote/call_guard.h"
#include "server/remote/chart.grpc.pb.h"
#include "server/service/charts.h"

namespace jogeon::remote {

class ChartCalls : public ChartService::Service {
public:
    // `charts` outlives this; `log` may be empty.
    ChartCalls(service::Charts& charts, service::FailureLog log) : charts_(charts), guard_(std::move(log)) {}

    grpc::Status Bars(grpc::ServerContext* context, const BarsRequest* request, BarsReply* reply) override;
    grpc::Status TrueDays(grpc::ServerContext* context, const TrueDaysRequest* request,
                          TrueDaysReply* reply) override;

private:
    service::Charts& charts_;
    const CallGuard guard_;
};

}  // namespace jogeon::remote
