// The requests over the user's condition sets and their replies, in the order of their bytes.
//
// The version check and list, "V", have their layouts beside the screen's own code (list_request.h), as the
// condition header and block have.
#pragma once

#include <string_view>

#include "screen/transactions/byte_field.h"
#include "screen/transactions/condition_block.h"
#include "screen/transactions/condition_header.h"

namespace jogeon::service {

inline constexpr std::string_view kStoreTransaction = "pisodbop";

inline constexpr int kMostBlocks = 20;  // conditions of a set
inline constexpr std::size_t kVersionWidth = 7;

// "A" save as a new set, "E" save under the header's number, "D" delete: these, then the blocks. "D" has room
// for all the blocks that a set may have; those that it doesn't need are blank.
namespace set_request {
inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kVersion{1, kVersionWidth};
inline constexpr ByteField kHeader{8, kConditionHeaderSize};
inline constexpr std::size_t kBlocks = kHeader.End();
inline constexpr std::size_t kDeleteSize = kBlocks + kMostBlocks * kConditionBlockSize;
}  // namespace set_request

// "C" change the order: these, then two digits for each set, its present number.
namespace reorder_request {
inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kVersion{1, kVersionWidth};
inline constexpr ByteField kUserId{8, 8};
inline constexpr ByteField kCount{16, 4};
inline constexpr std::size_t kNumbers = kCount.End();
inline constexpr std::size_t kNumberWidth = 2;
}  // namespace reorder_request

// The reply to "A", "E" and "D".
namespace set_reply {
inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kResult{1, 1};
inline constexpr ByteField kNumber{11, 2};  // of the set that "A" and "E" saved
inline constexpr ByteField kVersion{13, kVersionWidth};
inline constexpr std::size_t kSize = kVersion.End();
}  // namespace set_reply

// The reply to "C". Its version stands three bytes earlier than in the others.
namespace reorder_reply {
inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kResult{1, 1};
inline constexpr ByteField kVersion{10, kVersionWidth};
inline constexpr std::size_t kSize = kVersion.End();
}  // namespace reorder_reply

// How a downloaded block tells which of two indicators with the key 040103 it is about. The catalogue has
// only the one that needs the mark, and reads nothing else from these bytes.
namespace change_rate_mark {
inline constexpr std::string_view kKey = "040103";
inline constexpr ByteField kField{28, 2};
inline constexpr std::string_view kMark = "VV";
}  // namespace change_rate_mark

}  // namespace jogeon::service
