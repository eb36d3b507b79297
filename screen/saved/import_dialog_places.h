// The places of the dialog that brings in a set of another user.
#pragma once

#include "screen/saved/dialog_places.h"

namespace jogeon::import_dialog {

inline constexpr int kId = 17011;
inline constexpr int kIds = 17126;
inline constexpr int kSets = 22018;

inline constexpr int kWidth = 640;
inline constexpr int kHeight = 332;
inline constexpr DialogPlace kPlaces[] = {{kIds, 14, 14, 272, 266},
                                          {kSets, 294, 14, 332, 266},
                                          {kDialogOk, 466, 292, 76, 26},
                                          {kDialogCancel, 550, 292, 76, 26}};
inline constexpr int kIdColumnWidth = 122;  // the rest is the time's

}  // namespace jogeon::import_dialog
