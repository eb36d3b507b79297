// Bars that own their rows.
#pragma once

#include <span>
#include <utility>
#include <vector>

#include "server/market/market.h"

namespace jogeon::market {

class BarsInMemory : public Bars {
public:
    // One bar for each date, all values missing.
    BarsInMemory(int instruments, std::vector<int> dates);

    int Count() const override { return static_cast<int>(dates_.size()); }
    int Instruments() const override { return instruments_; }
    std::span<const double> Row(PriceField field, int bar) const override;
    int Date(int bar) const override { return dates_[static_cast<std::size_t>(bar)]; }

    std::span<double> WritableRow(PriceField field, int bar);

private:
    std::size_t RowStart(PriceField field, int bar) const;

    int instruments_;
    std::vector<int> dates_;
    std::vector<double> values_;  // field, then bar, then instrument
};

}  // namespace jogeon::market
