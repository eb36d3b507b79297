#include "server/remote/watch_calls.h"

#include <utility>

namespace jogeon::remote {
namespace {

void Write(const service::WatchedStock& stock, StockAtMoment& message) {
    message.set_code(stock.code);
    message.set_name(stock.name);
    message.set_price(stock.price);
    message.set_change(stock.change);
}

void Write(const service::WatchEvent& event, StockMoved& message) {
    Write(event.stock, *message.mutable_stock());
    message.set_time(event.time);
    message.set_entered(event.entered);
    message.set_rose(event.rose);
    message.set_fell(event.fell);
}

void Write(const service::WatchMatch& match, StockMatching& message) {
    Write(match.stock, *message.mutable_stock());
    message.set_since(match.since);
    message.set_holding(match.holding);
}

}  // namespace

WatchCalls::WatchCalls(service::Watches& watches, service::FailureLog log)
    : watches_(watches), guard_(std::move(log)) {}

template <typename Request, typename Reply, typename Call>
grpc::Status WatchCalls::Answer(const grpc::ServerContext& context, const Request& request, Reply& reply,
                                Call call) {
    return guard_.AnswerUser(context, request, [&] {
        try {
            call();
        } catch (const service::WatchError& refusal) {
            reply.set_refusal(refusal.what());
        }
        return grpc::Status::OK;
    });
}

grpc::Status WatchCalls::Open(grpc::ServerContext* context, const WatchOpenRequest* request,
                              WatchOpenReply* reply) {
    return Answer(*context, *request, *reply, [&] {
        const service::WatchStart start = watches_.Open(request->user(), request->condition_set());
        reply->set_id(start.id);
        reply->set_date(start.date);
        reply->set_replay(start.replay);
        reply->set_opens(start.opens);
        reply->set_closes(start.closes);
    });
}

grpc::Status WatchCalls::Advance(grpc::ServerContext* context, const WatchAdvanceRequest* request,
                                 WatchAdvanceReply* reply) {
    return Answer(*context, *request, *reply, [&] {
        const service::WatchNews news =
            watches_.Advance(request->user(), request->id(), request->milliseconds());
        reply->set_time(news.time);
        reply->set_over(news.over);
        reply->set_ticks(news.ticks);
        for (const service::WatchEvent& event : news.events) Write(event, *reply->add_events());
        for (const service::WatchMatch& match : news.matches) Write(match, *reply->add_matches());
    });
}

grpc::Status WatchCalls::Close(grpc::ServerContext* context, const WatchCloseRequest* request,
                               WatchCloseReply*) {
    return guard_.AnswerUser(*context, *request, [&] {
        watches_.Close(request->user(), request->id());
        return grpc::Status::OK;
    });
}

}  // namespace jogeon::remote
