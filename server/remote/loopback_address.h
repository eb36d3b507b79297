// The addresses that a server listens on and a terminal connects to: 127.0.0.1 and a port.
//
// Nothing proves yet that a user is who he says. So the service is there for programs of this machine only.
#pragma once

#include <stdexcept>
#include <string>

namespace jogeon::remote {

inline constexpr int kDefaultPort = 50150;

// What is wrong with an address, in one line for the user.
class BadAddress : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// "127.0.0.1:50150" gives 50150. Port 0 stands for any that is free. Throws BadAddress.
int ReadLoopbackAddress(const std::string& address);

std::string LoopbackAddress(int port);

}  // namespace jogeon::remote
