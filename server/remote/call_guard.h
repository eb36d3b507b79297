// What stands before every call of a server: the protocol's number, the user's id, and a net for what is
// thrown.
#pragma once

#include <exception>
#include <string>
#include <utility>

#include <grpcpp/server_context.h>
#include <grpcpp/support/status.h>

#include "screen/files/data_paths.h"
#include "server/service/request.h"

namespace jogeon::remote {

class CallGuard {
public:
    // `log` may be empty.
    explicit CallGuard(service::FailureLog log) : log_(std::move(log)) {}

    // Runs `call` when the asker speaks this protocol; what it throws becomes the call's failure.
    template <typename Call>
    grpc::Status Answer(const grpc::ServerContext& context, Call call) const {
        if (grpc::Status status = JudgeProtocol(context); !status.ok()) return status;
        try {
            return call();
        } catch (const std::exception& error) {
            if (log_) log_(error.what());
            return {grpc::StatusCode::INTERNAL, error.what()};
        }
    }

    // The same for a call of a user, once his id is one.
    template <typename Request, typename Call>
    grpc::Status AnswerUser(const grpc::ServerContext& context, const Request& request, Call call) const {
        return Answer(context, [&]() -> grpc::Status {
            if (!IsUserId(request.user()))
                return {grpc::StatusCode::INVALID_ARGUMENT, "a user id is 1 to 8 letters, digits or _"};
            return call();
        });
    }

private:
    static grpc::Status JudgeProtocol(const grpc::ServerContext& context);

    const service::FailureLog log_;
};

}  // namespace jogeon::remote
