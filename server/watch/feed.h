// What delivers the trades of a trading day.
//
// It is asked, never told: who watches takes what has come since he asked last. A replay gives its ticks up
// to the moment it is asked for, so that the asker chooses the speed. A real feed buffers what its exchange
// sends until it is asked, and ignores the moment.
#pragma once

#include <vector>

namespace jogeon::watch {

// Milliseconds since midnight, on the clock of the exchange.
using TimeOfDay = int;

inline constexpr TimeOfDay kMinute = 60'000;
inline constexpr TimeOfDay kOpening = 9 * 60 * kMinute;
inline constexpr TimeOfDay kClosing = (15 * 60 + 30) * kMinute;

struct Tick {
    int stock = 0;  // number of the instrument in its market
    TimeOfDay time = 0;
    double price = 0;   // won
    double volume = 0;  // shares; 0 tells the price of a stock that isn't traded

    friend bool operator==(const Tick&, const Tick&) = default;
};

class Feed {
public:
    virtual ~Feed() = default;

    // Appends the ticks since the last call, in order of time.
    virtual void Take(TimeOfDay until, std::vector<Tick>& ticks) = 0;

    // Whether the day has no tick left.
    virtual bool Over() const = 0;
};

}  // namespace jogeon::watch
