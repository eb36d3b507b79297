#include "server/remote/remote_watches.h"

#include "server/remote/connection.h"

namespace jogeon::remote {
namespace {

using Stub = WatchService::Stub;

template <typename Reply>
void ThrowRefusal(const Reply& reply) {
    if (!reply.refusal().empty()) throw service::WatchError(reply.refusal());
}

service::WatchedStock Read(const StockAtMoment& message) {
    return {message.code(), message.name(), message.price(), message.change()};
}

}  // namespace

service::WatchStart RemoteWatches::Open(const std::string& user, const std::string& conditionSet) {
    WatchOpenRequest asked;
    asked.set_user(user);
    asked.set_condition_set(conditionSet);
    WatchOpenReply reply;
    connection_.Demand(&Stub::Open, asked, reply, connection_.settings.handleDeadline);
    ThrowRefusal(reply);
    return {reply.id(), reply.date(), reply.replay(), reply.opens(), reply.closes()};
}

service::WatchNews RemoteWatches::Advance(const std::string& user, int id, int milliseconds) {
    WatchAdvanceRequest asked;
    asked.set_user(user);
    asked.set_id(id);
    asked.set_milliseconds(milliseconds);
    WatchAdvanceReply reply;
    connection_.Demand(&Stub::Advance, asked, reply, connection_.settings.handleDeadline);
    ThrowRefusal(reply);
    service::WatchNews news{reply.time(), reply.over(), reply.ticks(), {}, {}};
    for (const StockMoved& event : reply.events())
        news.events.push_back(
            {Read(event.stock()), event.time(), event.entered(), event.rose(), event.fell()});
    for (const StockMatching& match : reply.matches())
        news.matches.push_back({Read(match.stock()), match.since(), match.holding()});
    return news;
}

void RemoteWatches::Close(const std::string& user, int id) {
    WatchCloseRequest asked;
    asked.set_user(user);
    asked.set_id(id);
    WatchCloseReply reply;
    connection_.Demand(&Stub::Close, asked, reply);
}

}  // namespace jogeon::remote
