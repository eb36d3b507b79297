// The block by which the settings dialog and the screen tell each other settings.
//
// Little endian, 32 bits a value. The dialog owns the block, which is at least kSize bytes long.
#pragma once

#include <cstddef>

#include "screen/settings/screen_settings.h"

namespace jogeon {

namespace settings_block {

inline constexpr std::size_t kAlwaysOne = 0x78;
inline constexpr std::size_t kRegLink = 0x12c;
inline constexpr std::size_t kConfirmOverwrite = 0x130;
inline constexpr std::size_t kSize = 0x134;

}  // namespace settings_block

void FillSettingsBlock(const ScreenSettings& settings, std::byte* block);
void TakeSettingsBlock(const std::byte* block, ScreenSettings& settings);

}  // namespace jogeon
