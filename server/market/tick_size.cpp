#include "server/market/tick_size.h"

#include <algorithm>

namespace jogeon::market {

int TickSize(int price) {
    if (price < 2'000) return 1;
    if (price < 5'000) return 5;
    if (price < 20'000) return 10;
    if (price < 50'000) return 50;
    if (price < 200'000) return 100;
    if (price < 500'000) return 500;
    return 1'000;
}

int FloorToTick(double price) {
    const int whole = static_cast<int>(price);
    return whole - whole % TickSize(whole);
}

int CeilToTick(double price) {
    const int floor = FloorToTick(price);
    // The bounds between two ticks are multiples of both, so that a step up from below lands on one.
    return floor < price ? floor + TickSize(floor) : floor;
}

int RoundToTick(double price) {
    const int floor = FloorToTick(price);
    return price - floor < TickSize(floor) * 0.5 ? std::max(floor, 1) : floor + TickSize(floor);
}

// 13 / 10 and 7 / 10 in whole numbers: 1.3 is no double, and a close of 100 must have the limit 130.
int UpperLimit(int previousClose) {
    return FloorToTick(previousClose * 13.0 / 10.0);
}
int LowerLimit(int previousClose) {
    return CeilToTick(previousClose * 7.0 / 10.0);
}

}  // namespace jogeon::market
