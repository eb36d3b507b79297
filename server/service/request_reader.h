// Reading the payloads of "T" and "N".
//
// Every field is read inside the payload's bounds and every count is held against the bytes that are there.
// A payload that is cut short, too long or not what the layout says is refused as a whole.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "server/engine/search.h"

namespace jogeon::service {

struct SearchRequest {
    engine::SearchOrder order;
    std::vector<std::string> fids;  // as asked for, without leading zeros
};

struct PageRequest {
    int resultHandle = 0;
    int received = 0;  // rows that the asker has
};

// All three throw BadRequest.
SearchRequest ReadSearchRequest(std::string_view payload);
PageRequest ReadPageRequest(std::string_view payload);

// The conditions of a search without the request around them: a header and the blocks that it counts, no
// more.
engine::SearchOrder ReadConditions(std::string_view record);

}  // namespace jogeon::service
