// The host's colour map: a few numbered colours that screens ask for.
#pragma once

#include "screen/host/services.h"

namespace jogeon::terminal {

class HostColors : public host::ColorMap {
public:
    // Index 0 is the background, 0x34 that of radio buttons, 0x41 the line of grids; others are the
    // background.
    std::uint32_t GetColor(int index, int) override {
        constexpr std::uint32_t kBackground = 0xf4f1ef;
        constexpr std::uint32_t kGridLine = 0xd8d2cd;
        return index == 0x41 ? kGridLine : kBackground;
    }
};

}  // namespace jogeon::terminal
