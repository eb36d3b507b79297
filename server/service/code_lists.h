// The code lists by class, as the screen's host asks for them.
//
// A line is a three-byte code, a blank and the name in CP949.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "server/engine/market_groups.h"
#include "server/engine/user_groups.h"

namespace jogeon::service {

// "0202" 거래소 sectors, "0203" 코스닥 sectors, "0204" KOSPI200, "0205" KOSTAR, "0209" KRX100, "0504" all of
// these, "0502" the user's interest groups, "0505" his themes. Empty for any other class.
std::vector<std::string> CodeList(std::string_view codeClass, const engine::MarketGroups& groups,
                                  const engine::UserGroups& user);

}  // namespace jogeon::service
