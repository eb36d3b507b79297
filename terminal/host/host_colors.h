// The host's colour map: a few numbered colours that screens ask for, in the theme of the application.
#pragma once

#include "screen/host/services.h"
#include "screen/palette/theme_qt.h"
#include "screen/shell/host_color_numbers.h"

namespace jogeon::terminal {

class HostColors : public host::ColorMap {
public:
    // All but the line of grids are the background.
    std::uint32_t GetColor(int index, int) override {
        return ColorOf(index == kGridLineColor ? Color::HostGridLine : Color::ScreenBack, ApplicationTheme());
    }
};

}  // namespace jogeon::terminal
