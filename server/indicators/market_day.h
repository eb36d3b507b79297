// A market as it stands at its last bar, with the lines that conditions have computed on it so far.
//
// A line computed for one condition serves every other condition and user of the same day: it is computed
// once for each key, by whoever asks first, while others who need it wait. The memory of lines is bounded;
// the least recently used ones go first. All members may be called from several threads.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string_view>
#include <tuple>
#include <vector>

#include "server/market/market.h"

namespace jogeon::indicators {

using market::kMissing;
using market::Timeframe;

// One value for each instrument, kMissing where it is unknown.
using Column = std::vector<double>;

// A series at one bar and at the bar before it, which is what a crossing needs.
struct Line {
    Column now;
    Column before;
};

// The lines of one computation, in the order that it documents: MACD and its signal, for example.
using Lines = std::vector<Line>;

// What was computed, from which numbers, at which bar. `series` must be a literal.
struct LinesKey {
    std::string_view series;
    std::array<int, 4> parameters{};
    Timeframe timeframe = Timeframe::Day;
    int bar = 0;

    friend bool operator<(const LinesKey& left, const LinesKey& right) {
        return std::tie(left.series, left.parameters, left.timeframe, left.bar) <
               std::tie(right.series, right.parameters, right.timeframe, right.bar);
    }
};

// What recursive formulas have carried along up to the bar before the one they evaluate. Days over one market
// of which only the last bars change share it, so that no walk over the earlier bars is made twice. It grows
// with the conditions that are evaluated, and may be used from several threads.
class Groundwork {
public:
    std::shared_ptr<const void> Get(const LinesKey& key,
                                    const std::function<std::shared_ptr<const void>()>& compute) {
        const std::lock_guard lock(mutex_);
        std::shared_ptr<const void>& laid = laid_[key];
        if (!laid) laid = compute();
        return laid;
    }

private:
    std::mutex mutex_;
    std::map<LinesKey, std::shared_ptr<const void>> laid_;
};

class MarketDay {
public:
    static constexpr std::size_t kDefaultMemory = std::size_t{256} << 20;

    // `memory`: how many bytes of lines are kept for later askers. `groundwork` outlives the day; null for a
    // day that lays its own and keeps none.
    explicit MarketDay(std::shared_ptr<const market::Market> market, std::size_t memory = kDefaultMemory,
                       Groundwork* groundwork = nullptr);
    ~MarketDay();
    MarketDay(const MarketDay&) = delete;
    MarketDay& operator=(const MarketDay&) = delete;

    const market::Market& GetMarket() const { return *market_; }
    std::size_t Instruments() const { return market_->Instruments().size(); }

    // The bar that lies `barsAgo` before the last one; negative where history doesn't reach so far.
    int BarAgo(Timeframe timeframe, int barsAgo) const;

    // The lines of `key`, from memory or from `compute`, which may itself ask for the lines of other keys,
    // never its own. An exception of `compute` reaches everyone who waits for it, and is not remembered.
    std::shared_ptr<const Lines> Get(const LinesKey& key, const std::function<Lines()>& compute);

    // What `compute` makes of the bars before the key's, from the groundwork where it has been laid. All
    // callers with one series compute the same type.
    template <typename Laid>
    std::shared_ptr<const Laid> GetGroundwork(const LinesKey& key,
                                              const std::function<std::shared_ptr<const Laid>()>& compute) {
        if (!groundwork_) return compute();
        return std::static_pointer_cast<const Laid>(groundwork_->Get(key, compute));
    }

    // How often `Get` had to compute, since the day was made.
    std::size_t Computations() const;

private:
    class Memory;

    std::shared_ptr<const market::Market> market_;
    std::unique_ptr<Memory> memory_;
    Groundwork* groundwork_;
};

}  // namespace jogeon::indicators
