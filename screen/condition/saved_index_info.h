// One saved set of conditions, with its expression and search target.
//
// Members without a prefix carry the names of their keys in the saved-condition file. Sets are held by
// std::shared_ptr, since the tree, the screen and a request in flight may all hold one.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "screen/condition/index_info.h"
#include "screen/condition/target_fields.h"

namespace jogeon {

class CSavedIndexInfo : public TargetFields {
public:
    int m_bVendorSet = 0;  // 1: of the firm's read-only sets
    bool m_bWhole = true;  // false: a condition of its file is missing, its indicator being unknown
    std::string Name;
    std::string m_strKey = "00";  // the set's two-digit number, its section in the file
    int TypePosition = 1;         // 1 buy, any other value sell
    std::string Exp;              // letters with & | ! and brackets
    int Count = 0;                // number of conditions
    std::vector<std::unique_ptr<CIndexInfo>> m_Conditions;
};

}  // namespace jogeon
