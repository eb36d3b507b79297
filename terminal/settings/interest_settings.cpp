#include "terminal/settings/interest_settings.h"

#include <array>

#include "screen/host/window_messages_qt.h"
#include "screen/settings/settings_block.h"

namespace jogeon::terminal {
namespace {

using Block = std::array<std::byte, settings_block::kSize>;

std::intptr_t AddressOf(Block& block) {
    return reinterpret_cast<std::intptr_t>(block.data());
}

}  // namespace

void AskInterestSettings(host::WindowHandle screen, ScreenSettings& settings) {
    Block block{};
    host::SendMessage(screen, host::kSettingsFill, 0, AddressOf(block));
    TakeSettingsBlock(block.data(), settings);
}

void TellInterestSettings(host::WindowHandle screen, const ScreenSettings& settings) {
    Block block{};
    FillSettingsBlock(settings, block.data());
    host::SendMessage(screen, host::kSettingsTaken, settings_block::kAgreed << 8, AddressOf(block));
}

}  // namespace jogeon::terminal
