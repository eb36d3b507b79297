// Making the grid's columns follow those of a result.
#pragma once

#include "screen/results/result_set.h"
#include "screen/results/result_view_interface.h"
#include "screen/transactions/result_columns.h"

namespace jogeon {

// Frees the grid columns of the optional columns shown before, places and names those of `result`, selects
// the fixed columns that it has, gives the grid as many rows, and shows and hides columns accordingly. From
// then on `tables.columns` refers to columns that `result` owns.
void MatchColumns(const ResultSet& result, ColumnTables& tables, ResultView& view);

}  // namespace jogeon
