// The record that the transport takes: 123 bytes, its list elements and its payload in one block.
//
// A list is a 16-byte container: an allocator byte, three zero bytes, then where its elements begin, end and
// where their storage ends. Those and the data pointer are 4-byte little-endian offsets inside the block, so
// that it can be sent to another process as it stands. An empty list is all zero.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "screen/transactions/byte_field.h"

namespace jogeon {

namespace request_record {

inline constexpr ByteField kKind{0, 1};
inline constexpr ByteField kFlagA{1, 1};
inline constexpr ByteField kFlagB{2, 1};
inline constexpr ByteField kFlagC{3, 1};
inline constexpr ByteField kMajorId{4, 1};
inline constexpr ByteField kRequestKey{5, 1};
inline constexpr ByteField kTransaction{6, 8};
inline constexpr ByteField kTransactionEnd{14, 1};
inline constexpr ByteField kReservedTextA{15, 6};
inline constexpr ByteField kReservedTextB{21, 6};
inline constexpr ByteField kValueA{27, 4};
inline constexpr ByteField kValueB{31, 4};
inline constexpr ByteField kWindowList{35, 16};  // 32-bit elements; those of the other lists have 16 bits
inline constexpr ByteField kListA{51, 16};
inline constexpr ByteField kListB{67, 16};
inline constexpr ByteField kListC{83, 16};
inline constexpr ByteField kListD{99, 16};
inline constexpr ByteField kDataLength{115, 4};
inline constexpr ByteField kDataPointer{119, 4};
inline constexpr std::size_t kSize = 123;

inline constexpr char kRequestKind = 'T';
inline constexpr char kClosingKind = 'W';

}  // namespace request_record

// What varies from request to request.
struct CommRequestRecord {
    char kind = request_record::kRequestKind;
    std::uint8_t majorId = 0;
    std::uint8_t requestKey = 0;
    std::string transaction;   // eight bytes
    std::uint32_t window = 0;  // handle of the asking window; 0 in a closing record
    std::string payload;
};

// The block of a normal request.
std::string BuildRequestRecord(std::uint8_t majorId, std::uint8_t requestKey, std::string_view transaction,
                               std::uint32_t window, std::string_view payload);

// The block of the message that a closing screen sends.
std::string BuildClosingRecord(std::uint8_t majorId);

// Reads a block back, for the host. None when it is shorter than a record, or when a length or an offset
// points outside it.
std::optional<CommRequestRecord> ParseRequestRecord(std::string_view block);

}  // namespace jogeon
