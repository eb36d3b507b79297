// The places of the notice "nothing found" and of its text, in pixels.
#pragma once

#include <chrono>

namespace jogeon {

inline constexpr int kResultNoticeId = 18007;
inline constexpr int kResultNoticeTextId = 18009;

inline constexpr int kResultNoticeWidth = 250;
inline constexpr int kResultNoticeHeight = 58;
inline constexpr int kResultNoticeTextLeft = 10;
inline constexpr int kResultNoticeTextTop = 18;
inline constexpr int kResultNoticeTextWidth = 230;
inline constexpr int kResultNoticeTextHeight = 22;

inline constexpr int kResultNoticeTimer = 100;
inline constexpr std::chrono::milliseconds kResultNoticeTime{1000};

}  // namespace jogeon
