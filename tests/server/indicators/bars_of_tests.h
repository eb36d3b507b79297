// Small markets for the tests of indicators, and conditions written as "10^0|20^D|40^5".
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "server/indicators/indicator.h"
#include "server/market/bar.h"
#include "server/market/market_builder.h"

namespace jogeon::indicators {

using market::Bar;
using Roles = std::map<int, std::string>;

// Weekdays from Monday 2024-01-01 on, `count` of them, yyyymmdd.
std::vector<int> Weekdays(int count);

// Adds a stock whose bars end on the last of `dates`; a bar with close 0 is missing.
void AddStock(market::MarketBuilder& builder, market::Instrument stock, const std::vector<Bar>& bars,
              const std::vector<int>& dates);

// A market of one stock with these bars.
std::shared_ptr<const market::Market> MarketOf(const std::vector<Bar>& bars);

// Flat bars at these closes, volume 100.
std::vector<Bar> Flat(const std::vector<double>& closes);

// A condition of the indicator with this key; the values as in a saved set.
DecodedBlock ConditionOf(std::string_view key, const std::string& values);

Roles RolesOf(const std::string& values);

// Evaluates it on the market's last day.
Verdict Evaluate(std::shared_ptr<const market::Market> market, std::string_view key,
                 const std::string& values);

// One character for each instrument: '1' true, '0' false, '?' unknown.
std::string Signs(const Verdict& verdict);

}  // namespace jogeon::indicators
