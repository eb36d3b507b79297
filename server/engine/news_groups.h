// Examples of what the seven news sources write about, made of the market's last days.
//
// No news reaches this machine: a source's group is the stocks that a page of its kind would be about.
#pragma once

#include "server/engine/stock_group.h"
#include "server/market/market.h"

namespace jogeon::engine {

// Groups "902" to "908", each of at most twenty stocks; the same for the same market.
GroupList ExampleNews(const market::Market& market);

}  // namespace jogeon::engine
