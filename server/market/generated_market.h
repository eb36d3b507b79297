// The market of a first start: 2,600 invented stocks over 500 trading days up to 2026-10-30.
//
// Always the same, bit for bit, on every machine: it has its own random numbers and uses no function whose
// last digit a C library is free to choose. Prices obey the exchange's ticks and its daily limit.
#pragma once

#include <memory>

#include "server/market/market.h"

namespace jogeon::market {

std::shared_ptr<const Market> GenerateMarket();

}  // namespace jogeon::market
