#include "server/remote/service_calls.h"

#include <exception>
#include <utility>

#include "screen/files/data_paths.h"
#include "server/remote/protocol.h"

namespace jogeon::remote {
namespace {

constexpr std::uint32_t kMostKey = 0xFF;

template <typename Texts>
std::vector<std::string> ToVector(const Texts& texts) {
    return {texts.begin(), texts.end()};
}

std::string ProtocolOf(const grpc::ServerContext& context) {
    const auto entry = context.client_metadata().find(kProtocolEntry);
    return entry == context.client_metadata().end() ? "none"
                                                    : std::string(entry->second.data(), entry->second.size());
}

}  // namespace

ServiceCalls::ServiceCalls(service::Service& service, service::FailureLog log)
    : service_(service), log_(std::move(log)) {}

template <typename Call>
grpc::Status ServiceCalls::Answer(const grpc::ServerContext& context, Call call) {
    const std::string ours = std::to_string(kProtocol);
    if (const std::string theirs = ProtocolOf(context); theirs != ours)
        return {grpc::StatusCode::FAILED_PRECONDITION,
                "it speaks protocol " + ours + ", the asker " + theirs};
    try {
        return call();
    } catch (const std::exception& error) {
        if (log_) log_(error.what());
        return {grpc::StatusCode::INTERNAL, error.what()};
    }
}

template <typename Request, typename Call>
grpc::Status ServiceCalls::AnswerUser(const grpc::ServerContext& context, const Request& request, Call call) {
    return Answer(context, [&]() -> grpc::Status {
        if (!IsUserId(request.user()))
            return {grpc::StatusCode::INVALID_ARGUMENT, "a user id is 1 to 8 letters, digits or _"};
        return call();
    });
}

grpc::Status ServiceCalls::Handle(grpc::ServerContext* context, const HandleRequest* request,
                                  HandleReply* reply) {
    return AnswerUser(*context, *request, [&]() -> grpc::Status {
        if (request->key() > kMostKey)
            return {grpc::StatusCode::INVALID_ARGUMENT, "a request's key is one byte"};
        reply->set_payload(service_.Handle({request->user(), request->window(), request->transaction(),
                                            static_cast<std::uint8_t>(request->key()), request->payload()}));
        return grpc::Status::OK;
    });
}

grpc::Status ServiceCalls::FillCodeLists(grpc::ServerContext* context, const CodeListsRequest* request,
                                         CodeListsReply* reply) {
    return AnswerUser(*context, *request, [&] {
        std::map<std::string, std::vector<std::string>> lists;
        for (const std::string& codeClass : request->classes()) lists[codeClass];
        reply->set_had(service_.FillCodeLists(request->user(), lists));
        for (const auto& [codeClass, lines] : lists) {
            CodeList& list = *reply->add_lists();
            list.set_code_class(codeClass);
            list.mutable_lines()->Assign(lines.begin(), lines.end());
        }
        return grpc::Status::OK;
    });
}

grpc::Status ServiceCalls::Accounts(grpc::ServerContext* context, const AccountsRequest* request,
                                    AccountsReply* reply) {
    return AnswerUser(*context, *request, [&] {
        const std::vector<std::string> numbers = service_.Accounts(request->user());
        reply->mutable_numbers()->Assign(numbers.begin(), numbers.end());
        return grpc::Status::OK;
    });
}

grpc::Status ServiceCalls::AddInterestGroup(grpc::ServerContext* context, const InterestGroupRequest* request,
                                            InterestGroupReply* reply) {
    return AnswerUser(*context, *request, [&] {
        reply->set_code(
            service_.AddInterestGroup(request->user(), request->name(), ToVector(request->codes())));
        return grpc::Status::OK;
    });
}

grpc::Status ServiceCalls::StockName(grpc::ServerContext* context, const StockNameRequest* request,
                                     StockNameReply* reply) {
    return Answer(*context, [&] {
        reply->set_name(service_.StockName(request->code()));
        return grpc::Status::OK;
    });
}

grpc::Status ServiceCalls::Market(grpc::ServerContext* context, const MarketRequest*, MarketReply* reply) {
    return Answer(*context, [&] {
        const service::MarketSummary market = service_.Market();
        reply->set_source(market.source);
        reply->set_generated(market.generated);
        reply->set_stocks(market.stocks);
        reply->set_last_date(market.lastDate);
        return grpc::Status::OK;
    });
}

}  // namespace jogeon::remote
