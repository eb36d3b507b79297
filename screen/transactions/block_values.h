// The values of a condition block as values of the indicator's fields: the other way of BuildConditionBlock.
//
// Slots that nobody filled read as empty values. Every place of the block is known to exist.
#pragma once

#include <string_view>

#include "screen/condition/index_info.h"
#include "screen/transactions/condition_block.h"

namespace jogeon {

// Takes the values of `block`, of which `decoded` is the reading, into the fields and m_RoleValues of
// `condition`. A selector is set from the number or, in an 'F' block, from its sub-type; then only the fields
// of its option take a value. Without fields nothing happens.
void TakeBlockValues(std::string_view block, const DecodedBlock& decoded, CIndexInfo& condition);

}  // namespace jogeon
