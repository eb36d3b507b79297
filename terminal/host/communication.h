// The screen's transport: requests go to the service on a thread of its own, replies come back to the
// screen's window as messages.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <functional>
#include <string>

#include "screen/host/services.h"
#include "server/service/service.h"

namespace jogeon::terminal {

// One packet on its way.
struct TracedPacket {
    bool isReply = false;
    std::string transaction;
    std::uint8_t key = 0;
    std::string payload;
};

class ServiceCommunication : public QObject, public host::Communication {
public:
    using Tracer = std::function<void(const TracedPacket&)>;

    // `trace` may be empty; it is called on the user-interface thread. The service outlives this object.
    ServiceCommunication(service::Service& service, std::string user, Tracer trace);

    // Drops what a slow service hasn't begun to answer.
    ~ServiceCommunication() override;

    int CommRequestData(host::WindowHandle window, std::vector<std::string> records, int, int, int,
                        int wantReply) override;
    int CommRemoveBrod(host::WindowHandle window) override;

    // Whether every request that came has been answered, or needed no answer.
    bool Idle() const { return underWay_ == 0; }

private:
    void Answer(host::WindowHandle window, const service::Request& request);
    void Deliver(host::WindowHandle window, const TracedPacket& reply);

    service::Service& service_;
    const std::string user_;
    const Tracer trace_;
    int underWay_ = 0;    // requests whose answer has not been delivered
    QThreadPool worker_;  // one thread: requests are answered in the order they came
};

}  // namespace jogeon::terminal
