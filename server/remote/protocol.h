// What both ends of a connection agree on, beside the messages themselves.
#pragma once

namespace jogeon::remote {

// The number of the protocol, sent in every call's metadata under this name.
inline constexpr int kProtocol = 3;
inline constexpr char kProtocolEntry[] = "jogeon-protocol";

// Keeps the library's own remarks from standard error: what the user needs to know is told in our lines.
// Called before the first use of the library; once is enough, more do no harm.
void SilenceLibrary();

}  // namespace jogeon::remote
