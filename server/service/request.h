// A request to the service as the host hands it over, and where its failures are told.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace jogeon::service {

// `user` and `window` are whose request it is: the host knows them for certain. Copies of them inside the
// payload never count against them.
struct Request {
    std::string user;
    std::uint32_t window = 0;
    std::string transaction;  // eight bytes
    std::uint8_t key = 0;
    std::string payload;  // CP949
};

// Told, in one line of UTF-8, why a request failed: the reply itself has no room for it.
using FailureLog = std::function<void(const std::string&)>;

}  // namespace jogeon::service
