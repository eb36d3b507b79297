#include "server/market/bars_in_memory.h"

namespace jogeon::market {

BarsInMemory::BarsInMemory(int instruments, std::vector<int> dates)
    : instruments_(instruments),
      dates_(std::move(dates)),
      values_(dates_.size() * kPriceFields * static_cast<std::size_t>(instruments), kMissing) {}

std::size_t BarsInMemory::RowStart(PriceField field, int bar) const {
    const std::size_t row = static_cast<std::size_t>(field) * dates_.size() + static_cast<std::size_t>(bar);
    return row * static_cast<std::size_t>(instruments_);
}

std::span<const double> BarsInMemory::Row(PriceField field, int bar) const {
    return {values_.data() + RowStart(field, bar), static_cast<std::size_t>(instruments_)};
}

std::span<double> BarsInMemory::WritableRow(PriceField field, int bar) {
    return {values_.data() + RowStart(field, bar), static_cast<std::size_t>(instruments_)};
}

}  // namespace jogeon::market
