// Where the parts of a market file lie, which follows from how many there are of each, and access to the
// numbers in them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

#include "server/market/file_layout.h"
#include "server/market/market.h"

namespace jogeon::market {

struct FileCounts {
    std::uint64_t instruments = 0;
    std::array<std::uint64_t, kTimeframes> bars{};
    std::uint64_t textBytes = 0;

    std::uint64_t AllBars() const { return bars[0] + bars[1] + bars[2]; }
};

// Offsets from the begin of the file, in bytes.
struct FileSections {
    std::uint64_t instruments;
    std::uint64_t texts;
    std::uint64_t dates;
    std::uint64_t checksums;
    std::uint64_t rows;
    std::uint64_t rowStride;  // from one row to the next
    std::uint64_t end;        // the size of the file
};

// The counts are within layout::kMostInstruments, kMostBars and 2^32 bytes of texts.
FileSections Arrange(const FileCounts& counts);

// The place of a row among all rows of the file, and of its checksum among the checksums.
std::size_t RowNumber(const FileCounts& counts, Timeframe timeframe, PriceField field, int bar);

std::uint32_t Checksum(std::span<const std::byte> bytes);

// The number at `slot` of the record that begins at `record`. The caller has made sure that it is there.
template <typename Number>
Number Read(const std::byte* record, layout::Slot slot) {
    Number value{};
    static_assert(sizeof value <= 8);
    std::memcpy(&value, record + slot.offset, slot.width);
    return value;
}

// The reverse; `value` fits in the slot.
template <typename Number>
void Put(std::byte* record, layout::Slot slot, Number value) {
    std::memcpy(record + slot.offset, &value, slot.width);
}

}  // namespace jogeon::market
