// Where the tree pane hands what the user picks.
#pragma once

#include <memory>

#include "screen/condition/saved_index_info.h"

namespace jogeon {

class TreePicks {
public:
    // A saved set, of the firm or of the user, was picked to be opened.
    virtual void OnPickSaved(std::shared_ptr<CSavedIndexInfo> saved) = 0;

protected:
    ~TreePicks() = default;
};

}  // namespace jogeon
