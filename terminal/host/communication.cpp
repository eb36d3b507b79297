#include "terminal/host/communication.h"

#include <QMetaObject>
#include <utility>

#include "screen/host/window_messages_qt.h"
#include "screen/transactions/reply_record.h"
#include "screen/transactions/request_record.h"
#include "terminal/host/parting.h"

namespace jogeon::terminal {

ServiceCommunication::ServiceCommunication(service::Service& service, std::string user, Tracer trace)
    : service_(service), user_(std::move(user)), trace_(std::move(trace)) {
    worker_.setMaxThreadCount(1);
}

// Replies that are still under way find nobody to tell.
ServiceCommunication::~ServiceCommunication() {
    EndWork(worker_, service_);
}

int ServiceCommunication::CommRequestData(host::WindowHandle window, std::vector<std::string> records, int,
                                          int, int, int) {
    for (const std::string& block : records) {
        std::optional<CommRequestRecord> record = ParseRequestRecord(block);
        if (!record) return 0;
        if (trace_) trace_({false, record->transaction, record->requestKey, record->payload});
        service::Request request{user_, window, record->transaction, record->requestKey,
                                 std::move(record->payload)};
        ++underWay_;
        worker_.start([this, window, request = std::move(request)] { Answer(window, request); });
    }
    return 1;
}

// Nothing is broadcast here that could be taken back.
int ServiceCommunication::CommRemoveBrod(host::WindowHandle) {
    return 1;
}

// On the worker's thread. Some requests have no answer; the end of the wait is told all the same.
void ServiceCommunication::Answer(host::WindowHandle window, const service::Request& request) {
    TracedPacket reply{true, request.transaction, request.key, service_.Handle(request)};
    QMetaObject::invokeMethod(
        this, [this, window, reply = std::move(reply)] { Deliver(window, reply); }, Qt::QueuedConnection);
}

void ServiceCommunication::Deliver(host::WindowHandle window, const TracedPacket& reply) {
    --underWay_;
    if (reply.payload.empty()) return;
    if (trace_) trace_(reply);
    const std::string block = BuildReplyRecord(reply.payload);
    host::SendMessage(window, host::kServerReply, reply.key, reinterpret_cast<std::intptr_t>(&block));
}

}  // namespace jogeon::terminal
