#include "server/remote/remote_service.h"

#include <utility>

#include "server/remote/connection.h"
#include "server/remote/remote_charts.h"
#include "server/remote/remote_portfolios.h"
#include "server/remote/remote_watches.h"

namespace jogeon::remote {

using Stub = ConditionService::Stub;

RemoteService::RemoteService(const std::string& address, TroubleLog log, RemoteSettings settings)
    : connection_(std::make_unique<Connection>(address, std::move(log), settings)),
      portfolios_(std::make_unique<RemotePortfolios>(*connection_)),
      charts_(std::make_unique<RemoteCharts>(*connection_)),
      watches_(std::make_unique<RemoteWatches>(*connection_)) {}

RemoteService::~RemoteService() = default;

std::string RemoteService::Handle(const service::Request& request) {
    HandleRequest asked;
    asked.set_user(request.user);
    asked.set_window(request.window + connection_->windowShift);
    asked.set_transaction(request.transaction);
    asked.set_key(request.key);
    asked.set_payload(request.payload);
    HandleReply reply;
    if (!connection_->Ask(&Stub::Handle, asked, reply, connection_->settings.handleDeadline)) return {};
    return std::move(*reply.mutable_payload());
}

bool RemoteService::FillCodeLists(const std::string& user,
                                  std::map<std::string, std::vector<std::string>>& lists) {
    CodeListsRequest asked;
    asked.set_user(user);
    for (auto& [codeClass, lines] : lists) {
        asked.add_classes(codeClass);
        lines.clear();
    }
    CodeListsReply reply;
    if (!connection_->Ask(&Stub::FillCodeLists, asked, reply, connection_->settings.callDeadline))
        return false;
    if (!reply.had()) return false;
    for (const CodeList& list : reply.lists()) {
        const auto found = lists.find(list.code_class());
        if (found != lists.end()) found->second.assign(list.lines().begin(), list.lines().end());
    }
    return true;
}

std::vector<std::string> RemoteService::Accounts(const std::string& user) {
    AccountsRequest asked;
    asked.set_user(user);
    AccountsReply reply;
    connection_->Demand(&Stub::Accounts, asked, reply);
    return {reply.numbers().begin(), reply.numbers().end()};
}

std::string RemoteService::StockName(const std::string& code) {
    if (connection_->InTrouble()) return {};
    StockNameRequest asked;
    asked.set_code(code);
    StockNameReply reply;
    if (!connection_->Ask(&Stub::StockName, asked, reply, connection_->settings.callDeadline)) return {};
    return reply.name();
}

service::MarketSummary RemoteService::Market() {
    MarketReply reply;
    connection_->Demand(&Stub::Market, MarketRequest(), reply);
    return {reply.source(), reply.generated(), reply.stocks(), reply.last_date()};
}

void RemoteService::GiveUpCalls() {
    connection_->GiveUpCalls();
}

service::Portfolios& RemoteService::GetPortfolios() {
    return *portfolios_;
}

service::Charts& RemoteService::GetCharts() {
    return *charts_;
}

service::Watches& RemoteService::GetWatches() {
    return *watches_;
}

}  // namespace jogeon::remote
