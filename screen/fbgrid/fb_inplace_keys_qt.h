// The keys that end an in-place control.
#pragma once

#include <Qt>

namespace jogeon {

// They give the focus back to the grid and reach neither the control nor the grid.
inline bool EndsInPlaceControl(int key) {
    switch (key) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
            return true;
        default:
            return false;
    }
}

}  // namespace jogeon
