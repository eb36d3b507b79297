#include "screen/saved/same_contents.h"

#include <algorithm>

#include "screen/transactions/condition_block.h"

namespace jogeon {

bool SameContents(const CSavedIndexInfo& a, const CSavedIndexInfo& b) {
    const bool sameTarget = static_cast<const TargetFields&>(a) == static_cast<const TargetFields&>(b);
    if (!sameTarget || a.Exp != b.Exp || (a.TypePosition == 1) != (b.TypePosition == 1)) return false;
    return std::equal(a.m_Conditions.begin(), a.m_Conditions.end(), b.m_Conditions.begin(),
                      b.m_Conditions.end(), [](const auto& one, const auto& other) {
                          return BuildConditionBlock(*one) == BuildConditionBlock(*other);
                      });
}

}  // namespace jogeon
