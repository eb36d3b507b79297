// Moves the focus of a grid: which cell has it, and what the coming and going of the keyboard's does.
#pragma once

#include <QFocusEvent>

#include "screen/fbgrid/fb_grid_widget.h"

namespace jogeon {

struct FBGridParts;

class FBGridFocus {
public:
    FBGridFocus(CFBGrid& grid, FBGridParts& parts) : grid_(grid), parts_(parts) {}

    // As CFBGrid::SetCellFocus. False if that has deleted the grid.
    bool Give(CCellID cell, bool redraw, bool noToggle);

    // Marks the cell's row, and opens and toggles nothing.
    void Store(CCellID cell, bool redraw);

    bool Kill(bool redraw);
    void GiveRow(CCellID cell);

    void KeyboardCame(const QFocusEvent& event);
    void KeyboardWent(const QFocusEvent& event);

    const FBFocusColours& Colours() const { return colours_; }

private:
    bool Toggle(CCellID cell);

    CFBGrid& grid_;
    FBGridParts& parts_;
    FBFocusColours colours_;
};

}  // namespace jogeon
