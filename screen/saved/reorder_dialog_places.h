// The places of the dialog that puts the user's sets in a new order.
#pragma once

#include "screen/saved/dialog_places.h"

namespace jogeon::reorder_dialog {

inline constexpr int kId = 22002;
inline constexpr int kSets = 22018;
inline constexpr int kUp = 22025;
inline constexpr int kDown = 22026;
inline constexpr int kTop = 22027;
inline constexpr int kBottom = 22028;

inline constexpr int kWidth = 492;
inline constexpr int kHeight = 396;
inline constexpr DialogPlace kPlaces[] = {
    {kSets, 14, 14, 380, 368},         {kTop, 402, 40, 76, 26},     {kUp, 402, 74, 76, 26},
    {kDown, 402, 108, 76, 26},         {kBottom, 402, 142, 76, 26}, {kDialogOk, 402, 322, 76, 26},
    {kDialogCancel, 402, 356, 76, 26},
};

}  // namespace jogeon::reorder_dialog
