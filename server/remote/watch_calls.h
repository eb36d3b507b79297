// The calls of a connection over watches, each turned into one of a service's.
#pragma once

#include "server/remote/call_guard.h"
#include "server/remote/watch.grpc.pb.h"
#include "server/service/watches.h"

namespace jogeon::remote {

class WatchCalls : public WatchService::Service {
public:
    // `watches` outlives this; `log` may be empty.
    WatchCalls(service::Watches& watches, service::FailureLog log);

    grpc::Status Open(grpc::ServerContext* context, const WatchOpenRequest* request,
                      WatchOpenReply* reply) override;
    grpc::Status Advance(grpc::ServerContext* context, const WatchAdvanceRequest* request,
                         WatchAdvanceReply* reply) override;
    grpc::Status Close(grpc::ServerContext* context, const WatchCloseRequest* request,
                       WatchCloseReply* reply) override;

private:
    // Answers a user's call; what `call` refuses stands in the reply.
    template <typename Request, typename Reply, typename Call>
    grpc::Status Answer(const grpc::ServerContext& context, const Request& request, Reply& reply, Call call);

    service::Watches& watches_;
    const CallGuard guard_;
};

}  // namespace jogeon::remote
