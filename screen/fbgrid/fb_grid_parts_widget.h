// What stands behind CFBGrid's public header: a part for each way in which it is used, and what they share.
//
// Private to the grid, made and deleted with it. The parts reach each other through here. Wherever the
// parent is told, or others may run, the grid may be deleted and all this with it: a function that can lead
// there and goes on to be used returns false then, and its caller touches nothing more.
#pragma once

#include "screen/fbgrid/fb_cell_painter_qt.h"
#include "screen/fbgrid/fb_gesture.h"
#include "screen/fbgrid/fb_grid_focus_widget.h"
#include "screen/fbgrid/fb_grid_inplace_widget.h"
#include "screen/fbgrid/fb_grid_keys_widget.h"
#include "screen/fbgrid/fb_grid_mouse_widget.h"
#include "screen/fbgrid/fb_grid_scroll_widget.h"
#include "screen/fbgrid/fb_grid_sizes_widget.h"
#include "screen/fbgrid/fb_grid_widget.h"

namespace jogeon {

struct FBGridParts {
    explicit FBGridParts(CFBGrid& owner);

    bool Notify(int code, int row = -1, int col = -1);
    bool TakeFocus();

    // As if `key` (a Qt::Key) had been pressed on the grid, so that whoever extends its keys sees it too.
    void PressKey(int key);

    bool Exists(CCellID cell) const { return grid.IsValid(cell.row, cell.col); }

    // The look is kept, with the texts that it has laid out; what Qt decides about it is asked for each
    // picture.
    const FBGridLook& LookNow(CCellID pressedButton);

    CFBGrid& grid;
    int controlId = 0;
    FBGesture gesture;
    FBGridLook look;
    FBGridInPlace inPlace;
    FBGridScroll scroll;
    FBGridSizes sizes;
    FBGridFocus focus;
    FBGridKeys keys;
    FBGridMouse mouse;
};

}  // namespace jogeon
