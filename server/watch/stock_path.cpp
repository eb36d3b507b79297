#include "server/watch/stock_path.h"

#include <algorithm>
#include <cmath>

#include "server/market/tick_size.h"

namespace jogeon::watch {
namespace {

using market::Bar;

// A day's ticks are the root of its turnover in units of 10,000 won: 100 for 1억, 3,000 for 1,000억.
constexpr double kTurnoverUnit = 10'000;
constexpr double kFewestTicks = 2;
constexpr double kMostTicks = 5'000;

// Orders are collected from here to the close, which is one price for all of them.
constexpr TimeOfDay kClosingAuction = (15 * 60 + 20) * kMinute;

constexpr double kStraying = 0.6;  // of a whole day's path, as a part of the day's range
constexpr double kDearest = 1e9;   // prices beyond have no grid
constexpr double kEvenPart = 0.5;  // of the day's ticks; the others crowd at its two ends

bool FitsGrid(const Bar& day) {
    for (const double price : {day.open, day.high, day.low, day.close})
        if (price < 1 || price > kDearest || market::FloorToTick(price) != price) return false;
    return true;
}

int TicksOf(const Bar& day, int leastForPrices) {
    const double byTurnover = std::sqrt(day.close * day.volume / kTurnoverUnit);
    const double wanted = std::min(std::clamp(byTurnover, kFewestTicks, kMostTicks), std::floor(day.volume));
    return std::max(static_cast<int>(wanted), leastForPrices);
}

// Where in the day, 0 to 1, the part `x` of its ticks has come: they are denser at its two ends.
double Moment(double x) {
    return kEvenPart * x + (1 - kEvenPart) * x * x * (3 - 2 * x);
}

}  // namespace

StockPath::StockPath(const Bar& day, market::RandomNumbers random)
    : day_(day), random_(random), fitsGrid_(FitsGrid(day)), price_(day.open), unsold_(day.volume) {
    PlaceWaypoints();
    roughness_ = kStraying * (day_.high - day_.low) / std::sqrt(ticks_);
}

void StockPath::PlaceWaypoints() {
    const bool rose = day_.close >= day_.open;
    for (const double price :
         {day_.open, rose ? day_.low : day_.high, rose ? day_.high : day_.low, day_.close})
        if (waypoints_.empty() || waypoints_.back().price != price) waypoints_.push_back({0, price});
    ticks_ = TicksOf(day_, static_cast<int>(waypoints_.size()));
    if (waypoints_.size() == 1 && ticks_ > 1) waypoints_.push_back({0, day_.close});
    const int legs = static_cast<int>(waypoints_.size()) - 1;
    int earliest = 0;
    for (int i = 0; i <= legs; ++i) {
        const double astray = i == 0 || i == legs ? 0 : random_.Between(-0.4, 0.4);
        const double place = legs == 0 ? 0 : (i + astray) / legs;
        int& tick = waypoints_[static_cast<std::size_t>(i)].tick;
        tick = std::clamp(static_cast<int>(place * (ticks_ - 1)), earliest, ticks_ - 1 - (legs - i));
        earliest = tick + 1;
    }
}

Tick StockPath::Next() {
    const Tick tick{0, time_, DrawPrice(), DrawVolume()};
    ++done_;
    if (!Over()) time_ = DrawTime();
    return tick;
}

// Each tick has a stretch of the day of its own, so that they come in order.
TimeOfDay StockPath::DrawTime() {
    if (done_ == ticks_ - 1) return kClosing;
    const double x = (done_ - 1 + random_.Uniform()) / (ticks_ - 2);
    return kOpening + static_cast<TimeOfDay>(Moment(x) * (kClosingAuction - kOpening));
}

// Towards the next waypoint by what each of the ticks up to it has to bear, and astray by chance.
double StockPath::DrawPrice() {
    const Waypoint& goal = waypoints_[nextWaypoint_];
    if (done_ == goal.tick) {
        ++nextWaypoint_;
        return price_ = goal.price;
    }
    const double drift = (goal.price - price_) / (goal.tick - done_ + 1);
    price_ = std::clamp(price_ + drift + roughness_ * random_.Normal(), day_.low, day_.high);
    return OnGrid(price_);
}

// Whole shares, at least one while there are enough; the last tick has the rest.
double StockPath::DrawVolume() {
    const int left = ticks_ - done_;
    const double mean = unsold_ / left;
    double volume = unsold_;
    if (left > 1) {
        const double most = std::max(std::floor(unsold_) - (left - 1), 0.0);
        volume = std::clamp(std::floor(mean * random_.Between(0, 2)), std::min(1.0, most), most);
    }
    unsold_ -= volume;
    return volume;
}

double StockPath::OnGrid(double price) const {
    const double rounded = fitsGrid_ ? market::RoundToTick(price) : std::round(price);
    return std::clamp(rounded, day_.low, day_.high);
}

}  // namespace jogeon::watch
