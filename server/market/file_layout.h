// The bytes of a market file, in their order. All numbers are little endian, doubles are IEEE 754.
//
//   header       fixed size, at offset 0, with its own checksum
//   directory    instruments, texts, dates and one checksum for each row of bars, with one checksum for all
//   rows         for each timeframe and field one row for each bar: a double for each instrument
//
// Each row and each table begins at a multiple of 64 bytes, so that a row can be used where it lies.
// Writing and reading use these constants and nothing else.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace jogeon::market::layout {

static_assert(std::endian::native == std::endian::little, "rows are used as they lie in the file");

inline constexpr std::string_view kMagic = "JOGEONM\n";  // the line end shows damage by text transfer
inline constexpr std::uint32_t kVersion = 1;
inline constexpr std::size_t kAlignment = 64;

// Where a number stands, and how many bytes it takes.
struct Slot {
    std::size_t offset;
    std::size_t width;
};

namespace header {
inline constexpr Slot kMagic{0, 8};
inline constexpr Slot kVersion{8, 4};
inline constexpr Slot kGenerated{12, 4};    // 1 for the generated market, else 0
inline constexpr Slot kFileSize{16, 8};     // bytes
inline constexpr Slot kInstruments{24, 4};  // how many
inline constexpr Slot kDays{28, 4};         // how many bars
inline constexpr Slot kWeeks{32, 4};
inline constexpr Slot kMonths{36, 4};
inline constexpr Slot kInstrumentsAt{40, 8};  // offsets from the begin of the file
inline constexpr Slot kTextsAt{48, 8};
inline constexpr Slot kTextsSize{56, 8};    // bytes
inline constexpr Slot kDatesAt{64, 8};      // of days, then weeks, then months: 4 bytes each, yyyymmdd
inline constexpr Slot kChecksumsAt{72, 8};  // of rows, in their order: 4 bytes each
inline constexpr Slot kRowsAt{80, 8};       // the end of the directory
inline constexpr Slot kSourceAt{88, 4};     // in the texts
inline constexpr Slot kSourceSize{92, 4};
inline constexpr Slot kDirectoryChecksum{96, 4};  // of the bytes from the header's end to the rows
inline constexpr Slot kReserved{100, 24};         // 0
inline constexpr Slot kHeaderChecksum{124, 4};    // of the bytes before it
inline constexpr std::size_t kSize = 128;
}  // namespace header

// One instrument of the table at kInstrumentsAt.
namespace instrument {
inline constexpr Slot kCode{0, 6};
inline constexpr Slot kExchange{6, 1};         // 0 KOSPI, 1 KOSDAQ
inline constexpr Slot kSettlementMonth{7, 1};  // 0 unknown
inline constexpr Slot kListingDate{8, 4};      // yyyymmdd, 0 unknown
inline constexpr Slot kStatus{12, 4};          // bit 0 is the first status
inline constexpr Slot kShares{16, 8};          // double
inline constexpr Slot kFundamentals{24, 56};   // seven doubles
inline constexpr Slot kNameAt{80, 4};          // in the texts
inline constexpr Slot kNameSize{84, 4};
inline constexpr Slot kDivisionAt{88, 4};
inline constexpr Slot kDivisionSize{92, 4};
inline constexpr Slot kIndustryAt{96, 4};
inline constexpr Slot kIndustrySize{100, 4};
inline constexpr std::size_t kSize = 104;
}  // namespace instrument

inline constexpr std::size_t kDateSize = 4;
inline constexpr std::size_t kChecksumSize = 4;
inline constexpr std::size_t kValueSize = 8;

// More of either is no market but damage; the products of all sizes stay far below 2^64.
inline constexpr std::uint64_t kMostInstruments = 1'000'000;
inline constexpr std::uint64_t kMostBars = 1'000'000;

constexpr std::uint64_t RoundUp(std::uint64_t size) {
    return (size + kAlignment - 1) / kAlignment * kAlignment;
}

}  // namespace jogeon::market::layout
