// The list of stocks that the screen hands to all others, and where it puts it.
#pragma once

#include <string>
#include <vector>

#include "screen/host/services.h"
#include "screen/results/result_view_interface.h"

namespace jogeon {

// Publishes the codes under the screen's title, with the condition set that found them (header and blocks,
// empty for none), and gives them to the code-list button. The set is shared before the codes are, so that
// whoever hears of the codes reads the set that belongs to them.
void PublishCodeList(host::LinkStore& links, ResultView& view, const std::vector<std::string>& codes,
                     const std::string& conditionSet);

}  // namespace jogeon
