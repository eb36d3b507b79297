// The settings of the interest-group save, which screen 0150 keeps, by its messages.
#pragma once

#include "screen/host/services.h"
#include "screen/settings/screen_settings.h"

namespace jogeon::terminal {

// Asks the screen for them; those of one that doesn't answer are 0. The other settings stay as they are.
void AskInterestSettings(host::WindowHandle screen, ScreenSettings& settings);

// Hands them back to the screen.
void TellInterestSettings(host::WindowHandle screen, const ScreenSettings& settings);

}  // namespace jogeon::terminal
