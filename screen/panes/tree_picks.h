// Where the tree pane hands what the user picks.
#pragma once

#include <memory>

#include "screen/condition/saved_index_info.h"

namespace jogeon {

class TreePicks {
public:
    // An indicator was picked, to make a condition of. `fields` are those of the catalogue, head record
    // first; null if it has none. Both live as long as the tree pane.
    virtual void OnPickIndex(const CIndexInfo& info, const FieldArray* fields) = 0;

    // A saved set, of the firm or of the user, was picked to be opened.
    virtual void OnPickSaved(std::shared_ptr<CSavedIndexInfo> saved) = 0;

protected:
    ~TreePicks() = default;
};

}  // namespace jogeon
