// Saves what a grid holds as a worksheet file: its rows in their places, hidden columns left out.
//
// Relies on the grid's data alone; asks nothing and shows nothing. What stood at the path before stays if
// anything fails.
#pragma once

#include <filesystem>
#include <string_view>

#include "screen/fbgrid/fb_grid_data.h"

namespace jogeon {

// All columns, from the sheet's first one on. True if the whole file stands at `path`.
bool SaveSheet(const FBGridData& grid, const std::filesystem::path& path);

// The columns `firstCol` to `lastCol`, as far as there are such, from the sheet's column `firstCol` on; and
// `title` (CP949) in that column, one empty row below the last one. True if the whole file stands at `path`.
bool SaveSheetPartially(const FBGridData& grid, const std::filesystem::path& path, std::string_view title,
                        int firstCol, int lastCol);

}  // namespace jogeon
