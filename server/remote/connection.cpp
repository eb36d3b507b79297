#include "server/remote/connection.h"

#include <algorithm>
#include <random>
#include <utility>

#include <grpcpp/create_channel.h>
#include <grpcpp/security/credentials.h>

#include "server/remote/protocol.h"

namespace jogeon::remote {
namespace {

using std::chrono::milliseconds;

// How soon a connection that broke is tried again, in milliseconds.
constexpr int kFirstRetry = 100;
constexpr int kLongestRetry = 1'000;
constexpr int kConnectTime = 5'000;

constexpr milliseconds kTroubleLasts(5'000);

std::string Seconds(milliseconds time) {
    const auto tenths = time.count() / 100;
    return std::to_string(tenths / 10) + (tenths % 10 ? "." + std::to_string(tenths % 10) : "") + " s";
}

Trouble TroubleOf(const grpc::Status& status, const std::string& address, milliseconds deadline) {
    const std::string server = "the server at " + address;
    std::string told = status.error_message();
    std::replace_if(
        told.begin(), told.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    switch (status.error_code()) {
        case grpc::StatusCode::UNAVAILABLE:
            return {Trouble::Kind::Unreachable, server + " can't be reached; jogeond serve starts one"};
        case grpc::StatusCode::DEADLINE_EXCEEDED:
            return {Trouble::Kind::Late, server + " didn't answer within " + Seconds(deadline)};
        case grpc::StatusCode::FAILED_PRECONDITION:
            return {Trouble::Kind::OtherProtocol, server + " is of another version: " + told};
        case grpc::StatusCode::UNIMPLEMENTED:
            return {Trouble::Kind::OtherProtocol, server + " is another program's"};
        default:
            return {Trouble::Kind::Failed, server + " failed: " + told};
    }
}

}  // namespace

RemoteService::Connection::Stubs RemoteService::Connection::Connect(const std::string& address) {
    SilenceLibrary();
    grpc::ChannelArguments arguments;
    arguments.SetInt(GRPC_ARG_INITIAL_RECONNECT_BACKOFF_MS, kFirstRetry);
    arguments.SetInt(GRPC_ARG_MAX_RECONNECT_BACKOFF_MS, kLongestRetry);
    arguments.SetInt(GRPC_ARG_MIN_RECONNECT_BACKOFF_MS, kConnectTime);
    arguments.SetInt(GRPC_ARG_ENABLE_HTTP_PROXY, 0);
    arguments.SetInt(GRPC_ARG_USE_LOCAL_SUBCHANNEL_POOL, 1);
    const std::shared_ptr<grpc::Channel> channel =
        grpc::CreateCustomChannel("ipv4:" + address, grpc::InsecureChannelCredentials(), arguments);
    return {ConditionService::NewStub(channel), PortfolioService::NewStub(channel),
            ChartService::NewStub(channel), WatchService::NewStub(channel)};
}

// Windows of two terminals may have one handle, and a user may have two terminals. Each terminal shifts its
// own by a number of chance, so that the service keeps their results apart.
RemoteService::Connection::Connection(std::string serverAddress, TroubleLog troubleLog,
                                      RemoteSettings remoteSettings)
    : address(std::move(serverAddress)),
      log(std::move(troubleLog)),
      settings(remoteSettings),
      windowShift(std::random_device{}()),
      stubs_(Connect(address)) {}

bool RemoteService::Connection::InTrouble() const {
    return Clock::now() < lastTrouble_.load() + kTroubleLasts;
}

void RemoteService::Connection::GiveUpCalls() {
    const std::lock_guard lock(mutex_);
    givenUp_ = true;
    for (grpc::ClientContext* context : underWay_) context->TryCancel();
}

RemoteService::Connection::UnderWay::UnderWay(Connection& connection, grpc::ClientContext& context)
    : connection_(connection), context_(context) {
    const std::lock_guard lock(connection_.mutex_);
    connection_.underWay_.insert(&context_);
    if (connection_.givenUp_) context_.TryCancel();
}

RemoteService::Connection::UnderWay::~UnderWay() {
    const std::lock_guard lock(connection_.mutex_);
    connection_.underWay_.erase(&context_);
}

void RemoteService::Connection::Prepare(grpc::ClientContext& context, milliseconds deadline) const {
    context.set_deadline(std::chrono::system_clock::now() + deadline);
    context.AddMetadata(kProtocolEntry, std::to_string(settings.protocol));
}

std::optional<Trouble> RemoteService::Connection::Judge(const grpc::Status& status, milliseconds deadline) {
    if (status.ok()) {
        const bool wasInTrouble = lastTrouble_.exchange(Clock::time_point::min()) != Clock::time_point::min();
        if (wasInTrouble && settings.recovered) settings.recovered();
        return std::nullopt;
    }
    lastTrouble_ = Clock::now();
    const Trouble trouble = TroubleOf(status, address, deadline);
    if (trouble.kind != Trouble::Kind::Failed && settings.lost) settings.lost();
    return trouble;
}

}  // namespace jogeon::remote
