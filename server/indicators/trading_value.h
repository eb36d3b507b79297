// What was traded in money, estimated: bars hold no traded amount.
#pragma once

#include "server/indicators/windows.h"

namespace jogeon::indicators {

inline constexpr double kHundredMillion = 1e8;  // 억

// 시가총액 in 억원.
inline double Capitalization(double close, double shares) {
    return close * shares / kHundredMillion;
}

// The mean of close * volume over the n bars that end at `bar`, in 억원.
Column MeanTradingValue(const Bars& bars, int bar, int n);

}  // namespace jogeon::indicators
