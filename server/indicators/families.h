// The tables of indicators, one for each family of formulas. Together they make AllIndicators().
#pragma once

#include "server/indicators/indicator.h"

namespace jogeon::indicators {

std::span<const Indicator> MovingAverageIndicators();
std::span<const Indicator> OscillatorIndicators();
std::span<const Indicator> MacdIndicators();
std::span<const Indicator> TrendIndicators();
std::span<const Indicator> VolumeFlowIndicators();
std::span<const Indicator> PriceIndicators();
std::span<const Indicator> TradeIndicators();
std::span<const Indicator> CandleIndicators();
std::span<const Indicator> FundamentalIndicators();
std::span<const Indicator> RankIndicators();

}  // namespace jogeon::indicators
