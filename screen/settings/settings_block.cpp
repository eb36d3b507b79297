#include "screen/settings/settings_block.h"

#include <cstdint>
#include <cstring>

namespace jogeon {
namespace {

void Put(std::byte* block, std::size_t offset, std::int32_t value) {
    std::memcpy(block + offset, &value, sizeof value);
}

std::int32_t Get(const std::byte* block, std::size_t offset) {
    std::int32_t value = 0;
    std::memcpy(&value, block + offset, sizeof value);
    return value;
}

}  // namespace

void FillSettingsBlock(const ScreenSettings& settings, std::byte* block) {
    Put(block, settings_block::kColumnSizing, settings.changeSize ? 1 : 0);
    Put(block, settings_block::kAlwaysOne, 1);
    Put(block, settings_block::kNoLines, settings.lineBorder ? 1 : 0);
    Put(block, settings_block::kOddColor, static_cast<std::int32_t>(settings.oddColor));
    Put(block, settings_block::kEvenColor, static_cast<std::int32_t>(settings.evenColor));
    Put(block, settings_block::kRegLink, settings.regLink);
    Put(block, settings_block::kConfirmOverwrite, settings.confirmOverwrite);
}

void TakeSettingsBlock(const std::byte* block, ScreenSettings& settings) {
    settings.regLink = Get(block, settings_block::kRegLink);
    settings.confirmOverwrite = Get(block, settings_block::kConfirmOverwrite);
}

}  // namespace jogeon
