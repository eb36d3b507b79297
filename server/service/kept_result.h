// A search's result as it is kept while its pages are fetched.
#pragma once

#include <vector>

#include "server/engine/columns.h"
#include "server/engine/search.h"

namespace jogeon::service {

struct KeptResult {
    engine::SearchResult found;
    std::vector<const engine::ReplyColumn*> columns;  // those asked for that exist, in the order asked
};

}  // namespace jogeon::service
