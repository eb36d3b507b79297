#include "server/remote/service_server.h"

#include <chrono>

#include <grpcpp/server_builder.h>

#include "server/remote/chart_calls.h"
#include "server/remote/loopback_address.h"
#include "server/remote/portfolio_calls.h"
#include "server/remote/protocol.h"
#include "server/remote/service_calls.h"
#include "server/remote/watch_calls.h"

namespace jogeon::remote {
namespace {

constexpr std::chrono::seconds kGrace(5);  // for calls under way when the server ends

// Two servers on one port would share its calls between them, each with a store and results of its own.
constexpr int kPortIsOurs = 0;

}  // namespace

struct ServiceServer::State {
    State(service::Service& service, const service::FailureLog& log)
        : calls(service, log),
          portfolioCalls(service.GetPortfolios(), log),
          chartCalls(service.GetCharts(), log),
          watchCalls(service.GetWatches(), log) {}

    ServiceCalls calls;
    PortfolioCalls portfolioCalls;
    ChartCalls chartCalls;
    WatchCalls watchCalls;
    int port = 0;
    std::unique_ptr<grpc::Server> server;
};

ServiceServer::ServiceServer(service::Service& service, int port, const service::FailureLog& log)
    : state_(std::make_unique<State>(service, log)) {
    SilenceLibrary();
    grpc::ServerBuilder builder;
    builder.AddChannelArgument(GRPC_ARG_ALLOW_REUSEPORT, kPortIsOurs);
    builder.AddListeningPort(LoopbackAddress(port), grpc::InsecureServerCredentials(), &state_->port);
    builder.RegisterService(&state_->calls);
    builder.RegisterService(&state_->portfolioCalls);
    builder.RegisterService(&state_->chartCalls);
    builder.RegisterService(&state_->watchCalls);
    state_->server = builder.BuildAndStart();
    if (!state_->server || state_->port == 0)
        throw ListenError("can't listen on " + LoopbackAddress(port) +
                          ": another program has the port, or this user may not use it");
}

ServiceServer::~ServiceServer() {
    state_->server->Shutdown(std::chrono::system_clock::now() + kGrace);
    state_->server->Wait();
}

int ServiceServer::Port() const {
    return state_->port;
}

}  // namespace jogeon::remote
