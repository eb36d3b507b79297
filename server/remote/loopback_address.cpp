#include "server/remote/loopback_address.h"

#include <charconv>

namespace jogeon::remote {
namespace {

constexpr char kHost[] = "127.0.0.1";
constexpr int kMostPort = 65535;

}  // namespace

int ReadLoopbackAddress(const std::string& address) {
    const std::size_t colon = address.rfind(':');
    if (address.substr(0, colon) != kHost)
        throw BadAddress(address + ": loopback only until accounts exist; an address is like " +
                         LoopbackAddress(kDefaultPort));
    int port = -1;
    const char* const end = address.data() + address.size();
    const char* const from = colon == std::string::npos ? end : address.data() + colon + 1;
    const auto [stop, error] = std::from_chars(from, end, port);
    if (error != std::errc() || stop != end || port < 0 || port > kMostPort)
        throw BadAddress(address + ": no port from 0 to 65535 behind the colon; an address is like " +
                         LoopbackAddress(kDefaultPort));
    return port;
}

std::string LoopbackAddress(int port) {
    return std::string(kHost) + ":" + std::to_string(port);
}

}  // namespace jogeon::remote
