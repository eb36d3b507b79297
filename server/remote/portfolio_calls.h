// The calls of a connection over portfolios, each turned into one of a service's.
#pragma once

#include "server/remote/call_guard.h"
#include "server/remote/portfolio.grpc.pb.h"
#include "server/service/portfolios.h"

namespace jogeon::remote {

class PortfolioCalls : public PortfolioService::Service {
public:
    // `portfolios` outlive this; `log` may be empty.
    PortfolioCalls(service::Portfolios& portfolios, service::FailureLog log);

    grpc::Status Groups(grpc::ServerContext* context, const PortfolioUser* request,
                        GroupsReply* reply) override;
    grpc::Status Add(grpc::ServerContext* context, const AddGroupRequest* request,
                     AddGroupReply* reply) override;
    grpc::Status Rename(grpc::ServerContext* context, const RenameGroupRequest* request,
                        VerdictReply* reply) override;
    grpc::Status Delete(grpc::ServerContext* context, const GroupRequest* request,
                        VerdictReply* reply) override;
    grpc::Status Reorder(grpc::ServerContext* context, const StocksRequest* request,
                         VerdictReply* reply) override;
    grpc::Status SetStocks(grpc::ServerContext* context, const StocksRequest* request,
                           VerdictReply* reply) override;
    grpc::Status Accounts(grpc::ServerContext* context, const PortfolioUser* request,
                          HeldAccountsReply* reply) override;
    grpc::Status SetHoldings(grpc::ServerContext* context, const HoldingsRequest* request,
                             VerdictReply* reply) override;
    grpc::Status RemoveAccount(grpc::ServerContext* context, const GroupRequest* request,
                               VerdictReply* reply) override;
    grpc::Status Stocks(grpc::ServerContext* context, const StockListRequest* request,
                        StockListReply* reply) override;
    grpc::Status Quotes(grpc::ServerContext* context, const QuotesRequest* request,
                        QuotesReply* reply) override;

private:
    // Answers a user's command with the verdict that `command` gives.
    template <typename Request, typename Command>
    grpc::Status Answer(const grpc::ServerContext& context, const Request& request, VerdictReply& reply,
                        Command command);

    service::Portfolios& portfolios_;
    const CallGuard guard_;
};

}  // namespace jogeon::remote
