// Requests and replies as lines of text for --trace.
#pragma once

#include <string>

#include "terminal/host/communication.h"

namespace jogeon::terminal {

// One packet: a line of its direction, transaction, key and length; its bytes in hexadecimal, 32 a line with
// their offset; and its whole text in UTF-8. `limit` bytes at most are shown, and what is left out is told.
std::string Describe(const TracedPacket& packet, std::size_t limit = 4096);

}  // namespace jogeon::terminal
