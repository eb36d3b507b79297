#include "server/remote/call_guard.h"

#include "server/remote/protocol.h"

namespace jogeon::remote {

grpc::Status CallGuard::JudgeProtocol(const grpc::ServerContext& context) {
    const auto entry = context.client_metadata().find(kProtocolEntry);
    const std::string theirs = entry == context.client_metadata().end()
                                   ? "none"
                                   : std::string(entry->second.data(), entry->second.size());
    const std::string ours = std::to_string(kProtocol);
    if (theirs == ours) return grpc::Status::OK;
    return {grpc::StatusCode::FAILED_PRECONDITION, "it speaks protocol " + ours + ", the asker " + theirs};
}

}  // namespace jogeon::remote
