// Condition sets from their text: every line is checked, and a fault is told with its line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/jogeond/sets_builder.h"
#include "tools/jogeond/sets_condition.h"

namespace jogeon::sets_text {

struct SetsOfText {
    std::vector<TextSet> sets;          // in the order of the text
    std::vector<std::string> warnings;  // things allowed, but strange; each with its place
};

// Reads a text in UTF-8, which messages call `file`. Throws BadText: "FILE:LINE: reason".
SetsOfText ReadSets(std::string_view text, const std::string& file, const ConditionLines& conditions);

}  // namespace jogeon::sets_text
