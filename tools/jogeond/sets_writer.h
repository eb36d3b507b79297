// Condition sets as text, stable and one thing a line, so that it can be read, shared and compared.
#pragma once

#include <string>
#include <vector>

#include "server/store/condition_store.h"
#include "tools/jogeond/sets_condition.h"

namespace jogeon::sets_text {

// The text, UTF-8, from which ReadSets makes the very same records. Throws BadText, which names the set, for
// one whose indicators the catalogue doesn't have.
std::string WriteSets(const std::vector<store::StoredSet>& sets, const ConditionLines& conditions);

}  // namespace jogeon::sets_text
