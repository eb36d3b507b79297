// The payload of one step of a sequential search: a "T" like any other, over the first few conditions.
#pragma once

#include <optional>
#include <string>

#include "screen/transactions/search_request.h"

namespace jogeon {

// Takes the next step and gives its "T": the expression up to its step-th letter, and the first `step`
// checked conditions. Letters that don't stand in list order give a text and blocks that don't belong
// together; that is the server's to refuse. None, with the step left as it was, when the text has brackets or
// is refused, which the user has been told then, and when no condition is checked.
std::optional<std::string> BuildSequentialRequest(const SearchInputs& inputs, const ColumnTables& columns,
                                                  host::Questions& questions);

}  // namespace jogeon
