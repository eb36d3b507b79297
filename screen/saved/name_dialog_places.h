// The places of the dialog that asks for a set's name.
#pragma once

#include "screen/saved/dialog_places.h"

namespace jogeon::name_dialog {

inline constexpr int kId = 21013;
inline constexpr int kLabel = 21059;
inline constexpr int kEdit = 21066;
inline constexpr int kOk = 21064;
inline constexpr int kCancel = 21065;

inline constexpr int kWidth = 372;
inline constexpr int kHeight = 100;
inline constexpr DialogPlace kPlaces[] = {
    {kLabel, 16, 18, 56, 26}, {kEdit, 78, 18, 278, 26}, {kOk, 196, 60, 76, 26}, {kCancel, 280, 60, 76, 26}};

}  // namespace jogeon::name_dialog
