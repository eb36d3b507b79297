// The vocabulary of conditions that several controls share, one table of 60 texts (CP949).
#pragma once

#include <array>
#include <string>

namespace jogeon {

// Where the groups of the table begin that have readers. m_nKind counts from kKindLabels.
inline constexpr int kKindLabels = 0;        // 10 kinds
inline constexpr int kRangeTypeLabels = 10;  // 이내, 이전, 연속
inline constexpr int kHitTypeLabels = 13;    // 회, 회이상, 회이하
inline constexpr int kPeriodLabels = 16;     // 일봉, 60분봉 ... 5분봉

const std::array<std::string, 60>& ConditionLabelTable();

}  // namespace jogeon
