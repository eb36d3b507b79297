#include "server/remote/service_calls.h"

#include <utility>

namespace jogeon::remote {
namespace {

constexpr std::uint32_t kMostKey = 0xFF;

}  // namespace

ServiceCalls::ServiceCalls(service::Service& service, service::FailureLog log)
    : service_(service), guard_(std::move(log)) {}

grpc::Status ServiceCalls::Handle(grpc::ServerContext* context, const HandleRequest* request,
                                  HandleReply* reply) {
    return guard_.AnswerUser(*context, *request, [&]() -> grpc::Status {
        if (request->key() > kMostKey)
            return {grpc::StatusCode::INVALID_ARGUMENT, "a request's key is one byte"};
        reply->set_payload(service_.Handle({request->user(), request->window(), request->transaction(),
                                            static_cast<std::uint8_t>(request->key()), request->payload()}));
        return grpc::Status::OK;
    });
}

grpc::Status ServiceCalls::FillCodeLists(grpc::ServerContext* context, const CodeListsRequest* request,
                                         CodeListsReply* reply) {
    return guard_.AnswerUser(*context, *request, [&] {
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
    return guard_.AnswerUser(*context, *request, [&] {
        const std::vector<std::string> numbers = service_.Accounts(request->user());
        reply->mutable_numbers()->Assign(numbers.begin(), numbers.end());
        return grpc::Status::OK;
    });
}

grpc::Status ServiceCalls::StockName(grpc::ServerContext* context, const StockNameRequest* request,
                                     StockNameReply* reply) {
    return guard_.Answer(*context, [&] {
        reply->set_name(service_.StockName(request->code()));
        return grpc::Status::OK;
    });
}

grpc::Status ServiceCalls::Market(grpc::ServerContext* context, const MarketRequest*, MarketReply* reply) {
    return guard_.Answer(*context, [&] {
        const service::MarketSummary market = service_.Market();
        reply->set_source(market.source);
        reply->set_generated(market.generated);
        reply->set_stocks(market.stocks);
        reply->set_last_date(market.lastDate);
        return grpc::Status::OK;
    });
}

}  // namespace jogeon::remote
