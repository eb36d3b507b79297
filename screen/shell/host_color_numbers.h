// Indexes of the host's colour map that the screen asks for.
#pragma once

namespace jogeon {

inline constexpr int kBackgroundColor = 0;
inline constexpr int kRadioColor = 0x34;
inline constexpr int kGridLineColor = 0x41;

}  // namespace jogeon
