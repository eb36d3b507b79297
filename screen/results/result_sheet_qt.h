// The result grid as a sheet for a spreadsheet program.
#pragma once

#include <vector>

#include "screen/host/services.h"

namespace jogeon {

class ResultGrid;

// These grid rows of the columns on show, from left to right: names and codes as text, numbers as numbers.
host::Sheet MakeResultSheet(const ResultGrid& grid, const std::vector<int>& rows);

}  // namespace jogeon
