// The block by which the screen tells others its settings, and the settings dialog hands some of them back.
//
// Little endian, 32 bits a value. Whoever asks owns the block, which is at least kSize bytes long.
#pragma once

#include <cstddef>

#include "screen/settings/screen_settings.h"

namespace jogeon {

namespace settings_block {

// Of the result grid, filled only.
inline constexpr std::size_t kColumnSizing = 0x6c;  // 1: the user may size the columns
inline constexpr std::size_t kAlwaysOne = 0x78;
inline constexpr std::size_t kNoLines = 0x7c;   // one byte, widened: 1 without grid lines
inline constexpr std::size_t kOddColor = 0x8c;  // of the first, third ... row; 0 for the grid's own
inline constexpr std::size_t kEvenColor = 0x90;

// Of the interest-group save, filled and taken.
inline constexpr std::size_t kRegLink = 0x12c;
inline constexpr std::size_t kConfirmOverwrite = 0x130;

inline constexpr std::size_t kSize = 0x134;

// Second byte of the wParam of the message that hands the block back.
inline constexpr std::uintptr_t kAgreed = 3;

}  // namespace settings_block

void FillSettingsBlock(const ScreenSettings& settings, std::byte* block);

// The options of the interest-group save; the others stay as they are.
void TakeSettingsBlock(const std::byte* block, ScreenSettings& settings);

}  // namespace jogeon
