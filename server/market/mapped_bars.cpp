#include "server/market/mapped_bars.h"

#include <stdexcept>
#include <utility>

namespace jogeon::market {

MappedBars::MappedBars(std::shared_ptr<const OpenedFile> file, Timeframe timeframe, std::vector<int> dates)
    : file_(std::move(file)),
      timeframe_(timeframe),
      dates_(std::move(dates)),
      sound_(std::make_unique<std::atomic<bool>[]>(dates_.size() * kPriceFields)) {}

std::span<const double> MappedBars::Row(PriceField field, int bar) const {
    if (bar < 0 || bar >= Count()) throw std::out_of_range("no such bar in the market file");
    const std::size_t row = RowNumber(file_->counts, timeframe_, field, bar);
    const std::byte* const data = file_->map.Bytes().data() + file_->at.rows + row * file_->at.rowStride;
    // The map begins at a page and rows at a multiple of 64 bytes, so that the doubles are aligned.
    const std::span values(reinterpret_cast<const double*>(data), file_->counts.instruments);
    const std::size_t own = row - RowNumber(file_->counts, timeframe_, PriceField::Open, 0);
    if (!sound_[own].load(std::memory_order_relaxed)) {
        Check(row, values, bar);
        sound_[own].store(true, std::memory_order_relaxed);
    }
    return values;
}

void MappedBars::Check(std::size_t row, std::span<const double> values, int bar) const {
    const std::byte* const sums = file_->map.Bytes().data() + file_->at.checksums;
    const auto expected = Read<std::uint32_t>(sums + row * layout::kChecksumSize, {0, layout::kChecksumSize});
    if (Checksum(std::as_bytes(values)) != expected)
        throw MarketError(file_->name + ": the bars of " + std::to_string(Date(bar)) +
                          " are damaged; import the market again");
}

}  // namespace jogeon::market
