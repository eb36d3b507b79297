// How long a test of the terminal waits before it gives up.
#pragma once

namespace jogeon::terminal {

inline constexpr int kPatience = 60'000;  // milliseconds, for a sanitized build on a busy machine

}  // namespace jogeon::terminal
