#include "server/indicators/market_day.h"

#include <future>
#include <list>
#include <map>
#include <mutex>
#include <utility>

namespace jogeon::indicators {

namespace {

using SharedLines = std::shared_ptr<const Lines>;

std::size_t BytesOf(const Lines& lines) {
    std::size_t bytes = sizeof(Lines);
    for (const Line& line : lines) bytes += (line.now.capacity() + line.before.capacity()) * sizeof(double);
    return bytes;
}

}  // namespace

// The lines by key, and the order in which they were last asked for.
class MarketDay::Memory {
public:
    explicit Memory(std::size_t limit) : limit_(limit) {}

    SharedLines Get(const LinesKey& key, const std::function<Lines()>& compute) {
        std::unique_lock lock(mutex_);
        if (auto found = entries_.find(key); found != entries_.end()) {
            recent_.splice(recent_.begin(), recent_, found->second.use);
            std::shared_future<SharedLines> lines = found->second.lines;
            lock.unlock();
            return lines.get();
        }
        std::promise<SharedLines> promise;
        recent_.push_front(key);
        entries_.emplace(key, Entry{promise.get_future().share(), recent_.begin(), 0});
        ++computations_;
        lock.unlock();
        return Compute(key, compute, promise);
    }

    std::size_t Computations() const {
        std::lock_guard lock(mutex_);
        return computations_;
    }

private:
    struct Entry {
        std::shared_future<SharedLines> lines;
        std::list<LinesKey>::iterator use;
        std::size_t bytes;  // 0 while it is being computed
    };

    SharedLines Compute(const LinesKey& key, const std::function<Lines()>& compute,
                        std::promise<SharedLines>& promise) {
        try {
            SharedLines lines = std::make_shared<const Lines>(compute());
            promise.set_value(lines);
            Remember(key, BytesOf(*lines));
            return lines;
        } catch (...) {
            promise.set_exception(std::current_exception());
            std::lock_guard lock(mutex_);
            Forget(entries_.find(key));
            throw;
        }
    }

    void Remember(const LinesKey& key, std::size_t bytes) {
        std::lock_guard lock(mutex_);
        entries_.at(key).bytes = bytes;
        bytes_ += bytes;
        auto oldest = recent_.end();
        while (bytes_ > limit_ && oldest != recent_.begin()) {
            auto entry = entries_.find(*--oldest);
            if (!entry->second.bytes) continue;  // somebody is waiting for it
            ++oldest;
            Forget(entry);
        }
    }

    void Forget(std::map<LinesKey, Entry>::iterator entry) {
        bytes_ -= entry->second.bytes;
        recent_.erase(entry->second.use);
        entries_.erase(entry);
    }

    mutable std::mutex mutex_;
    std::map<LinesKey, Entry> entries_;
    std::list<LinesKey> recent_;  // the most recent first
    std::size_t limit_;
    std::size_t bytes_ = 0;
    std::size_t computations_ = 0;
};

MarketDay::MarketDay(std::shared_ptr<const market::Market> market, std::size_t memory, Groundwork* groundwork)
    : market_(std::move(market)), memory_(std::make_unique<Memory>(memory)), groundwork_(groundwork) {}

MarketDay::~MarketDay() = default;

int MarketDay::BarAgo(Timeframe timeframe, int barsAgo) const {
    return market_->BarsOf(timeframe).Count() - 1 - barsAgo;
}

std::shared_ptr<const Lines> MarketDay::Get(const LinesKey& key, const std::function<Lines()>& compute) {
    return memory_->Get(key, compute);
}

std::size_t MarketDay::Computations() const {
    return memory_->Computations();
}

}  // namespace jogeon::indicators
