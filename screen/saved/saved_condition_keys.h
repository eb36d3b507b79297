// The layout of the saved-condition files: sections, keys in their order, and the tokens of a condition line.
//
// One table for reading and writing.
#pragma once

#include <cstddef>
#include <string_view>

#include "screen/condition/target_fields.h"

namespace jogeon::saved_condition {

inline constexpr std::string_view kVersionSection = "Version";
inline constexpr std::string_view kVersionKey = "ver";

// Keys of a set's section, in the order in which they are written; the condition lines "00", "01" ... follow.
struct NumberKey {
    std::string_view key;
    int TargetFields::*member;
};
inline constexpr std::string_view kName = "Name";
inline constexpr std::string_view kTypePosition = "TypePosition";
inline constexpr NumberKey kUniverse[] = {{"Upjong", &TargetFields::Upjong},
                                          {"Portfolio", &TargetFields::Portfolio},
                                          {"Recommend", &TargetFields::Recommend}};
inline constexpr std::string_view kAcc = "Acc";
inline constexpr std::string_view kGroup = "Group";
inline constexpr NumberKey kRestrictions[] = {
    {"Except1", &TargetFields::Except1}, {"Except2", &TargetFields::Except2},
    {"Except3", &TargetFields::Except3}, {"Except4", &TargetFields::Except4},
    {"Except5", &TargetFields::Except5}, {"Except6", &TargetFields::Except6},
    {"Except7", &TargetFields::Except7}, {"Except10", &TargetFields::Except10},
    {"Month", &TargetFields::Month}};
inline constexpr std::string_view kExp = "Exp";
inline constexpr std::string_view kCount = "Count";

// Tokens of a condition line.
inline constexpr int kIndicator = 0;
inline constexpr int kLetter = 1;
inline constexpr int kChecked = 2;
inline constexpr int kShowValue = 3;
inline constexpr int kValues = 4;

inline constexpr std::size_t kGroupCodeWidth = 3;
inline constexpr int kMostLines = 100;  // a Count beyond it is damage: the server has two digits for it

}  // namespace jogeon::saved_condition
