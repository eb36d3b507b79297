// The calls of a connection, each turned into one of a service.
#pragma once

#include "server/remote/call_guard.h"
#include "server/remote/jogeon.grpc.pb.h"
#include "server/service/service.h"

namespace jogeon::remote {

class ServiceCalls : public ConditionService::Service {
public:
    // `service` outlives this; `log` may be empty.
    ServiceCalls(service::Service& service, service::FailureLog log);

    grpc::Status Handle(grpc::ServerContext* context, const HandleRequest* request,
                        HandleReply* reply) override;
    grpc::Status FillCodeLists(grpc::ServerContext* context, const CodeListsRequest* request,
                               CodeListsReply* reply) override;
    grpc::Status Accounts(grpc::ServerContext* context, const AccountsRequest* request,
                          AccountsReply* reply) override;
    grpc::Status StockName(grpc::ServerContext* context, const StockNameRequest* request,
                           StockNameReply* reply) override;
    grpc::Status Market(grpc::ServerContext* context, const MarketRequest* request,
                        MarketReply* reply) override;

private:
    service::Service& service_;
    const CallGuard guard_;
};

}  // namespace jogeon::remote
