// One end of a connection: makes the calls, and turns what went wrong into a line for the user.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <tuple>

#include "server/remote/chart.grpc.pb.h"
#include "server/remote/jogeon.grpc.pb.h"
#include "server/remote/portfolio.grpc.pb.h"
#include "server/remote/remote_service.h"
#include "server/remote/watch.grpc.pb.h"

namespace jogeon::remote {

struct RemoteService::Connection {
    Connection(std::string address, TroubleLog log, RemoteSettings settings);

    // A call of one of the server's services.
    template <typename Stub, typename Request, typename Reply>
    using Method = grpc::Status (Stub::*)(grpc::ClientContext*, const Request&, Reply*);

    // Calls and waits. False, with the trouble logged, when the call failed.
    template <typename Stub, typename Request, typename Reply>
    bool Ask(Method<Stub, Request, Reply> call, const Request& request, Reply& reply,
             std::chrono::milliseconds deadline) {
        const std::optional<Trouble> trouble = Call(call, request, reply, deadline);
        if (trouble && log && !givenUp_) log(*trouble);
        return !trouble;
    }

    // The same, but throws the trouble as a RemoteError.
    template <typename Stub, typename Request, typename Reply>
    void Demand(Method<Stub, Request, Reply> call, const Request& request, Reply& reply,
                std::chrono::milliseconds deadline) {
        const std::optional<Trouble> trouble = Call(call, request, reply, deadline);
        if (trouble) throw RemoteError(trouble->line);
    }
    template <typename Stub, typename Request, typename Reply>
    void Demand(Method<Stub, Request, Reply> call, const Request& request, Reply& reply) {
        Demand(call, request, reply, settings.callDeadline);
    }

    // Whether a call failed a moment ago.
    bool InTrouble() const;

    // Ends the calls under way and has those to come fail.
    void GiveUpCalls();

    const std::string address;
    const TroubleLog log;
    const RemoteSettings settings;
    const std::uint32_t windowShift;

private:
    // A call that can be given up.
    class UnderWay {
    public:
        UnderWay(Connection& connection, grpc::ClientContext& context);
        ~UnderWay();
        UnderWay(const UnderWay&) = delete;
        UnderWay& operator=(const UnderWay&) = delete;

    private:
        Connection& connection_;
        grpc::ClientContext& context_;
    };

    // One for each service that the server offers.
    using Stubs = std::tuple<std::unique_ptr<ConditionService::Stub>, std::unique_ptr<PortfolioService::Stub>,
                             std::unique_ptr<ChartService::Stub>, std::unique_ptr<WatchService::Stub>>;
    using Clock = std::chrono::steady_clock;

    template <typename Stub, typename Request, typename Reply>
    std::optional<Trouble> Call(Method<Stub, Request, Reply> call, const Request& request, Reply& reply,
                                std::chrono::milliseconds deadline) {
        grpc::ClientContext context;
        Prepare(context, deadline);
        const UnderWay underWay(*this, context);
        return Judge((std::get<std::unique_ptr<Stub>>(stubs_).get()->*call)(&context, request, &reply),
                     deadline);
    }

    void Prepare(grpc::ClientContext& context, std::chrono::milliseconds deadline) const;
    std::optional<Trouble> Judge(const grpc::Status& status, std::chrono::milliseconds deadline);

    static Stubs Connect(const std::string& address);

    const Stubs stubs_;
    std::atomic<Clock::time_point> lastTrouble_{Clock::time_point::min()};
    std::atomic<bool> givenUp_ = false;
    std::mutex mutex_;
    std::set<grpc::ClientContext*> underWay_;  // under mutex_
};

}  // namespace jogeon::remote
