// The places of a dialog's controls, in pixels: one table for each dialog, in its own file.
#pragma once

#include <cstddef>
#include <span>

namespace jogeon {

struct DialogPlace {
    int id;
    int left, top, width, height;
};

// The controls that close a dialog, where its table has no other numbers for them.
inline constexpr int kDialogOk = 1;
inline constexpr int kDialogCancel = 2;

}  // namespace jogeon
