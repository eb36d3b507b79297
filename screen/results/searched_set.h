// What a search asked for, kept with what it found.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screen/transactions/search_request.h"

namespace jogeon {

struct SearchedSet {
    std::string conditionSet;                 // header and blocks, as they were sent
    std::vector<std::string> conditionTexts;  // of the blocks: "A  description"
    std::string targetLabel;
};

// Of a search whose "T" payload was composed of `inputs`.
SearchedSet SearchedSetOf(const SearchInputs& inputs, std::string_view payload);

}  // namespace jogeon
