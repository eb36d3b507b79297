// What the user is in the middle of doing to a grid: one thing at most, as each ends the one before.
//
// Plain data. Places are those of the moment it began; whoever holds it asks again whether they still exist.
#pragma once

#include <variant>

#include "screen/fbgrid/fb_cell.h"

namespace jogeon {

// A push button is held down. It is drawn pressed while the pointer is on it.
struct ButtonPress {
    CCellID cell;
    bool inside = true;
};

// The focused row is being dragged.
struct RowDrag {};

// The Up and Down keys carry a row between two bounds; `cell` is where it has got to.
struct RowMove {
    int minRow = 0;
    int maxRow = 0;
    CCellID cell;
    FBColour mark = 0;  // background of its cells
};

using FBGesture = std::variant<std::monostate, ButtonPress, RowDrag, RowMove>;

}  // namespace jogeon
