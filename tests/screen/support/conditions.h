// Conditions made by hand, without a catalogue.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "screen/condition/index_info.h"

namespace jogeon::test {

inline CIndexInfo MakeCondition(char letter, const std::string& key, int number,
                                std::map<int, std::string> roles) {
    CIndexInfo condition;
    condition.m_strKey = key;
    condition.m_nIndexNo = number;
    condition.m_chLetter = letter;
    condition.m_bChecked = 1;
    condition.m_RoleValues = std::move(roles);
    return condition;
}

// Gives the condition a head record and a selector field with option `selected`.
inline void AddSelector(CIndexInfo& condition, int selected) {
    condition.m_pFields = std::make_unique<FieldArray>();
    condition.m_pFields->push_back(std::make_unique<CIndexField>());
    condition.m_pFields->push_back(std::make_unique<CIndexField>());
    condition.m_pFields->back()->m_nRole = kRoleSelector;
    condition.m_pFields->back()->m_nSelected = selected;
    condition.m_bHasSelector = 1;
}

}  // namespace jogeon::test
