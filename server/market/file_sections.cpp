#include "server/market/file_sections.h"

#include <zlib.h>

namespace jogeon::market {

FileSections Arrange(const FileCounts& counts) {
    using layout::RoundUp;
    FileSections at{};
    at.instruments = RoundUp(layout::header::kSize);
    at.texts = RoundUp(at.instruments + counts.instruments * layout::instrument::kSize);
    at.dates = RoundUp(at.texts + counts.textBytes);
    at.checksums = RoundUp(at.dates + counts.AllBars() * layout::kDateSize);
    at.rows = RoundUp(at.checksums + counts.AllBars() * kPriceFields * layout::kChecksumSize);
    at.rowStride = RoundUp(counts.instruments * layout::kValueSize);
    at.end = at.rows + counts.AllBars() * kPriceFields * at.rowStride;
    return at;
}

std::size_t RowNumber(const FileCounts& counts, Timeframe timeframe, PriceField field, int bar) {
    const auto which = static_cast<std::size_t>(timeframe);
    std::uint64_t barsBefore = 0;
    for (std::size_t i = 0; i < which; ++i) barsBefore += counts.bars[i];
    return barsBefore * kPriceFields + static_cast<std::size_t>(field) * counts.bars[which] +
           static_cast<std::size_t>(bar);
}

std::uint32_t Checksum(std::span<const std::byte> bytes) {
    const auto* const data = reinterpret_cast<const Bytef*>(bytes.data());
    return static_cast<std::uint32_t>(crc32_z(0, data, bytes.size()));
}

}  // namespace jogeon::market
