// One stock's day as ticks: a path through the open, high, low and close of its bar.
//
// Relies on a bar that FitBar would pass. The bar that is built from all of the ticks is that bar, exactly.
// On a day that rose the low comes before the high, on one that fell after it. Where the bar's own prices are
// on the exchange's grid, those of the ticks are.
#pragma once

#include <cstddef>
#include <vector>

#include "server/market/bar.h"
#include "server/market/random_numbers.h"
#include "server/watch/feed.h"

namespace jogeon::watch {

class StockPath {
public:
    // The number of ticks grows with the day's turnover. A halted day is one tick of volume 0.
    StockPath(const market::Bar& day, market::RandomNumbers random);

    bool Over() const { return done_ == ticks_; }

    // The time of the next tick, and that tick, its stock left at 0. Not when it is over.
    TimeOfDay Time() const { return time_; }
    Tick Next();

private:
    // A price that the path must have at a certain tick.
    struct Waypoint {
        int tick = 0;
        double price = 0;
    };

    void PlaceWaypoints();
    TimeOfDay DrawTime();
    double DrawPrice();
    double DrawVolume();
    double OnGrid(double price) const;

    market::Bar day_;
    market::RandomNumbers random_;
    bool fitsGrid_;
    std::vector<Waypoint> waypoints_;
    std::size_t nextWaypoint_ = 0;
    int ticks_ = 1;
    int done_ = 0;
    TimeOfDay time_ = kOpening;
    double price_;      // before it is put on the grid
    double unsold_;     // volume that is left for the ticks to come
    double roughness_;  // what a tick's price strays by
};

}  // namespace jogeon::watch
