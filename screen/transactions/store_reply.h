// The replies to requests that change the user's stored sets.
//
// "A", "E" and "D" share one layout; "C" has its version three bytes earlier. A reply that is cut before its
// version, or whose number is none where one is due, is read as no success.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screen/transactions/byte_field.h"

namespace jogeon {

namespace store_reply {  // to "A", "E" and "D"

inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kResult{1, 1};   // "0" is failure
inline constexpr ByteField kNumber{11, 2};  // assigned; of "A" and "E"
inline constexpr ByteField kVersion{13, 7};

}  // namespace store_reply

namespace reorder_reply {  // to "C"

inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kResult{1, 1};  // "1" is success
inline constexpr ByteField kVersion{10, 7};

}  // namespace reorder_reply

struct StoreReply {
    bool success = false;
    std::string number;                  // of a successful save
    std::optional<std::string> version;  // trimmed on the right; none in a reply too short for one
};

// `data` begins with "A", "E" or "D".
StoreReply ReadStoreReply(std::string_view data);

// `data` begins with "C".
StoreReply ReadReorderReply(std::string_view data);

}  // namespace jogeon
