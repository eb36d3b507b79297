#include "screen/results/searched_set.h"

#include <algorithm>

#include "screen/condition/index_info.h"
#include "screen/transactions/condition_block.h"

namespace jogeon {

// The blocks are those of the first checked conditions.
SearchedSet SearchedSetOf(const SearchInputs& inputs, std::string_view payload) {
    SearchedSet searched;
    searched.conditionSet = ConditionSetIn(payload);
    searched.targetLabel = inputs.targetLabel;
    const std::size_t header = std::min(searched.conditionSet.size(), kConditionHeaderSize);
    const std::size_t blocks = (searched.conditionSet.size() - header) / kConditionBlockSize;
    for (const CIndexInfo* condition : CheckedConditions(inputs.conditions)) {
        if (searched.conditionTexts.size() == blocks) break;
        searched.conditionTexts.push_back(condition->m_chLetter + ("  " + condition->GetDescription()));
    }
    return searched;
}

}  // namespace jogeon
