// A market made of its parts, wherever the bars live: in memory or in a mapped file.
//
// AsOf gives views that share the daily rows and derive only the week and month of their last day.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "server/market/market.h"

namespace jogeon::market {

class StoredMarket : public Market {
public:
    struct Parts {
        std::vector<Instrument> instruments;  // in order of code
        std::array<std::unique_ptr<const Bars>, kTimeframes> bars;
        std::string source;
        bool generated = false;
    };
    explicit StoredMarket(Parts parts) : parts_(std::move(parts)) {}

    const std::vector<Instrument>& Instruments() const override { return parts_.instruments; }
    const Bars& BarsOf(Timeframe timeframe) const override {
        return *parts_.bars[static_cast<std::size_t>(timeframe)];
    }
    bool Generated() const override { return parts_.generated; }
    const std::string& Source() const override { return parts_.source; }
    std::shared_ptr<const Market> AsOf(int date) const override;

private:
    Parts parts_;
};

}  // namespace jogeon::market
