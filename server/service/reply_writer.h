// The bytes of a reply to a search: its counts, its column list and one page of rows.
#pragma once

#include <cstddef>
#include <string>

#include "server/indicators/market_day.h"
#include "server/service/kept_result.h"

namespace jogeon::service {

inline constexpr std::size_t kPageRows = 200;

// The counts have four digits. Of a result with more matches only the first ones, by code, are delivered.
inline constexpr std::size_t kMaxTotal = 9999;

// The page that follows the first `received` rows; `received` is at most the number of matches. `letter` is
// the request's.
std::string BuildPage(char letter, int handle, const KeptResult& result, std::size_t received,
                      indicators::MarketDay& day);

// What a request that can't be evaluated is answered.
std::string BuildFailure(char letter);

}  // namespace jogeon::service
