// The fixed parts of the requests of a search, in the order of their bytes.
//
// The condition header and block, and the reply, have their layouts beside the screen's own code.
#pragma once

#include "screen/transactions/byte_field.h"
#include "screen/transactions/condition_header.h"

namespace jogeon::service {

inline constexpr std::string_view kSearchTransaction = "pisoscop";

// "T": these, then the condition blocks, the column list, and for a narrowing search the code list.
namespace search_request {
inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kWindow{1, 8};
inline constexpr ByteField kScope{9, 1};
inline constexpr ByteField kHeader{10, kConditionHeaderSize};
inline constexpr std::size_t kBlocks = kHeader.End();
inline constexpr std::size_t kCountWidth = 4;  // of the columns asked for, and of the codes
inline constexpr std::size_t kFidWidth = 4;
inline constexpr std::size_t kCodeWidth = 12;  // market letter and code
}  // namespace search_request

// "N", 23 bytes.
namespace page_request {
inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kWindow{1, 8};
inline constexpr ByteField kUser{9, 8};
inline constexpr ByteField kResultHandle{17, 2};
inline constexpr ByteField kReceived{19, 4};
}  // namespace page_request

}  // namespace jogeon::service
