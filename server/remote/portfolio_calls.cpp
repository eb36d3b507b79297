#include "server/remote/portfolio_calls.h"

#include <utility>

#include "server/remote/portfolio_messages.h"

namespace jogeon::remote {
namespace {

using grpc::ServerContext;
using grpc::Status;

std::uint32_t NumberOf(service::Verdict verdict) {
    return static_cast<std::uint32_t>(verdict);
}

}  // namespace

PortfolioCalls::PortfolioCalls(service::Portfolios& portfolios, service::FailureLog log)
    : portfolios_(portfolios), guard_(std::move(log)) {}

template <typename Request, typename Command>
Status PortfolioCalls::Answer(const ServerContext& context, const Request& request, VerdictReply& reply,
                              Command command) {
    return guard_.AnswerUser(context, request, [&] {
        reply.set_verdict(NumberOf(command()));
        return Status::OK;
    });
}

Status PortfolioCalls::Groups(ServerContext* context, const PortfolioUser* request, GroupsReply* reply) {
    return guard_.AnswerUser(*context, *request, [&] {
        for (const service::InterestGroup& group : portfolios_.Groups(request->user()))
            Write(group, *reply->add_groups());
        return Status::OK;
    });
}

Status PortfolioCalls::Add(ServerContext* context, const AddGroupRequest* request, AddGroupReply* reply) {
    return guard_.AnswerUser(*context, *request, [&] {
        const service::Addition added =
            portfolios_.Add(request->user(), request->name(), ToVector(request->stocks()));
        reply->set_verdict(NumberOf(added.verdict));
        reply->set_code(added.code);
        return Status::OK;
    });
}

Status PortfolioCalls::Rename(ServerContext* context, const RenameGroupRequest* request,
                              VerdictReply* reply) {
    return Answer(*context, *request, *reply,
                  [&] { return portfolios_.Rename(request->user(), request->code(), request->name()); });
}

Status PortfolioCalls::Delete(ServerContext* context, const GroupRequest* request, VerdictReply* reply) {
    return Answer(*context, *request, *reply,
                  [&] { return portfolios_.Delete(request->user(), request->code()); });
}

Status PortfolioCalls::Reorder(ServerContext* context, const StocksRequest* request, VerdictReply* reply) {
    return Answer(*context, *request, *reply,
                  [&] { return portfolios_.Reorder(request->user(), ToVector(request->codes())); });
}

Status PortfolioCalls::SetStocks(ServerContext* context, const StocksRequest* request, VerdictReply* reply) {
    return Answer(*context, *request, *reply, [&] {
        return portfolios_.SetStocks(request->user(), request->code(), ToVector(request->before()),
                                     ToVector(request->codes()));
    });
}

Status PortfolioCalls::Accounts(ServerContext* context, const PortfolioUser* request,
                                HeldAccountsReply* reply) {
    return guard_.AnswerUser(*context, *request, [&] {
        for (const service::HeldAccount& account : portfolios_.Accounts(request->user()))
            Write(account, *reply->add_accounts());
        return Status::OK;
    });
}

Status PortfolioCalls::SetHoldings(ServerContext* context, const HoldingsRequest* request,
                                   VerdictReply* reply) {
    return Answer(*context, *request, *reply, [&] {
        const service::HeldAccount account = Read(request->account());
        return portfolios_.SetHoldings(request->user(), account.number, account.holdings);
    });
}

Status PortfolioCalls::RemoveAccount(ServerContext* context, const GroupRequest* request,
                                     VerdictReply* reply) {
    return Answer(*context, *request, *reply,
                  [&] { return portfolios_.RemoveAccount(request->user(), request->code()); });
}

Status PortfolioCalls::Stocks(ServerContext* context, const StockListRequest*, StockListReply* reply) {
    return guard_.Answer(*context, [&] {
        for (const service::StockEntry& stock : portfolios_.Stocks()) {
            StockEntry& entry = *reply->add_stocks();
            entry.set_code(stock.code);
            entry.set_name(stock.name);
            entry.set_market(static_cast<unsigned char>(stock.market));
        }
        return Status::OK;
    });
}

Status PortfolioCalls::Quotes(ServerContext* context, const QuotesRequest* request, QuotesReply* reply) {
    return guard_.Answer(*context, [&] {
        for (const service::Quote& quote : portfolios_.Quotes(ToVector(request->codes()))) {
            Quote& entry = *reply->add_quotes();
            entry.set_code(quote.code);
            entry.set_close(quote.close);
            entry.set_change(quote.change);
        }
        return Status::OK;
    });
}

}  // namespace jogeon::remote
