// Offers a service to the programs of this machine.
//
// Relies on gRPC, which calls the service from several threads at once. A call of another protocol, or that
// makes no sense, is refused before it reaches the service; what the service throws fails its call only.
#pragma once

#include <memory>
#include <stdexcept>

#include "server/service/service.h"

namespace jogeon::remote {

// Why a server can't listen, in one line for the user.
class ListenError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class ServiceServer {
public:
    // Answers from now on. Port 0 takes one that is free. `service` outlives this; `log` may be empty and is
    // called from several threads. Throws ListenError when the port can't be had.
    ServiceServer(service::Service& service, int port, const service::FailureLog& log = {});

    // Takes no more calls, and waits for the ones under way. Their askers are told that they failed when they
    // take longer than a few seconds.
    ~ServiceServer();

    ServiceServer(const ServiceServer&) = delete;
    ServiceServer& operator=(const ServiceServer&) = delete;

    int Port() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace jogeon::remote
