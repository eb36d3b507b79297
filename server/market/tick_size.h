// The prices that the exchange permits: its ticks since January 2023, and the daily limit.
#pragma once

namespace jogeon::market {

// The step between prices at `price`, both in won.
int TickSize(int price);

// The permitted price at or below, and at or above, `price`, which is at least 1.
int FloorToTick(double price);
int CeilToTick(double price);
int RoundToTick(double price);

// The highest and lowest price of the day after a close: 30 percent away, cut to a tick.
int UpperLimit(int previousClose);
int LowerLimit(int previousClose);

}  // namespace jogeon::market
