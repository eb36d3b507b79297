// Whether two sets say the same, whatever they are called and numbered: what a search of them would send.
#pragma once

#include "screen/condition/saved_index_info.h"

namespace jogeon {

bool SameContents(const CSavedIndexInfo& a, const CSavedIndexInfo& b);

}  // namespace jogeon
