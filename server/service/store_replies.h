// The bytes of the replies over a user's condition sets.
#pragma once

#include <string>
#include <string_view>

#include "server/store/condition_store.h"

namespace jogeon::service {

// To "V": the sets are as the user has them.
std::string BuildListEqual();

// To "V": one packet of the user's sets, under the version that is `told` with them.
std::string BuildListPacket(const store::Listing& listing, std::string_view told, std::string_view user);

// To the command `letter`: "A", "E", "D" or "C". A failed one is told the version of the user's sets.
std::string BuildDone(char letter, const store::Change& change);
std::string BuildFailed(char letter, std::string_view version);

}  // namespace jogeon::service
