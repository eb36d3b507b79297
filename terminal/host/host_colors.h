// The host's colour map: a few numbered colours that screens ask for, in the theme of the application.
#pragma once

#include "screen/host/services.h"
#include "screen/palette/theme_qt.h"

namespace jogeon::terminal {

class HostColors : public host::ColorMap {
public:
    // Index 0 is the background, 0x34 that of radio buttons, 0x41 the line of grids; others are the
    // background.
    std::uint32_t GetColor(int index, int) override {
        return ColorOf(index == 0x41 ? Color::HostGridLine : Color::ScreenBack, ApplicationTheme());
    }
};

}  // namespace jogeon::terminal
