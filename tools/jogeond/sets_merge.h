// What a user's sets are to be when others come in.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "server/store/condition_store.h"
#include "tools/jogeond/sets_reader.h"

namespace jogeon {

enum class MergeMode {
    Add,      // a name that the user has is a conflict
    Update,   // a set takes the place of the user's of its name, else it is added
    Replace,  // the sets that come in are all that the user has
};

// Why sets can't come in: a line for each conflict, in UTF-8.
class MergeConflict : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct MergeResult {
    std::vector<store::StoredSet> sets;  // all of the user's, in the order of their numbers
    int added = 0;
    int replaced = 0;  // under a number that the user had
    int removed = 0;
};

// Throws MergeConflict; `file` is how it calls the text that `incoming` is from.
MergeResult MergeSets(MergeMode mode, const std::vector<store::StoredSet>& present,
                      const std::vector<sets_text::TextSet>& incoming, const std::string& file);

}  // namespace jogeon
