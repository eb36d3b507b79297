// A named set of stocks that a search can choose: a sector, an index, an interest group, a theme, a news
// source.
#pragma once

#include <string>
#include <vector>

#include "server/indicators/bit_set.h"

namespace jogeon::engine {

struct StockGroup {
    std::string code;  // three bytes; see market_groups.h and user_groups.h for what they begin with
    std::string name;  // UTF-8
    indicators::BitSet members;
};

using GroupList = std::vector<StockGroup>;

// The group with this code, null if there is none.
inline const StockGroup* FindGroup(const GroupList& groups, std::string_view code) {
    for (const StockGroup& group : groups)
        if (group.code == code) return &group;
    return nullptr;
}

}  // namespace jogeon::engine
