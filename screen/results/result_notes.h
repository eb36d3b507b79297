// The lines that say of a result where it comes from, for whoever keeps it outside the screen.
#pragma once

#include <string>
#include <vector>

#include "screen/host/services.h"
#include "screen/results/result_set.h"

namespace jogeon {

// Condition set, expression, conditions and target as they were when the search was sent, whatever the screen
// shows by now, and the counts. `tabLabel` is the result's tab. CP949.
std::vector<host::SheetNote> MakeResultNotes(const ResultSet& result, const std::string& tabLabel);

}  // namespace jogeon
