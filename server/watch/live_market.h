// A market whose last day is being formed from ticks.
//
// Its earlier days are those of a whole market, shared; the bars of the last day, week and month are its own
// and change in place, only for the stock that ticked. A stock is missing on that day until its first tick.
//
// Unlike other markets it changes, by Take. So it belongs to one owner, who lets nobody read it meanwhile and
// makes a new MarketDay over it behind each change.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "server/market/market.h"
#include "server/watch/feed.h"
#include "server/watch/forming_bars.h"

namespace jogeon::watch {

class LiveMarket : public market::Market {
public:
    // `whole` as it stood before its last day. Throws MarketError when it has no day, or one that can't be
    // read.
    explicit LiveMarket(std::shared_ptr<const market::Market> whole);

    // A tick that no stock can have (none of this market, a price that isn't positive) is passed over.
    void Take(const Tick& tick);

    const std::vector<market::Instrument>& Instruments() const override { return whole_->Instruments(); }
    const market::Bars& BarsOf(market::Timeframe timeframe) const override {
        return bars_[static_cast<std::size_t>(timeframe)];
    }
    bool Generated() const override { return whole_->Generated(); }
    const std::string& Source() const override { return whole_->Source(); }
    std::shared_ptr<const market::Market> AsOf(int date) const override;

private:
    FormingBars Form(market::Timeframe timeframe) const;

    std::shared_ptr<const market::Market> whole_;
    std::array<FormingBars, market::kTimeframes> bars_;
    std::vector<market::Bar> today_;  // one for each stock; volume below 0 before its first tick
};

}  // namespace jogeon::watch
