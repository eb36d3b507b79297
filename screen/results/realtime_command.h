// The hand-over of the conditions to the screen that watches them in real time.
//
// This screen keeps nothing of it and hears nothing back.
#pragma once

#include <optional>
#include <string>

#include "screen/host/services.h"
#include "screen/results/host_main_window.h"
#include "screen/transactions/search_request.h"

namespace jogeon {

// Header and blocks of the checked conditions. None without a condition, when the expression is refused,
// which the user has been told then, and without a checked condition.
std::optional<std::string> BuildRealtimeCondition(const SearchInputs& inputs, host::Questions& questions);

// Shares the conditions, opens the watching screen and tells it of them. Where there is nothing to hand over,
// the screen opens with what was shared before.
void RealtimeCommand(const SearchInputs& inputs, host::LinkStore& links, host::Questions& questions,
                     const HostMainWindow& mainWindow);

}  // namespace jogeon
