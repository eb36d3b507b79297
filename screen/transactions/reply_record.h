// The record in which the transport delivers a reply: a block with offsets in the place of pointers.
//
// It holds the data's length and, at 139, a list of 16-byte elements, each of them a list of byte pointers;
// the reply's data is the first pointer of the first element. Nothing else in it is read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screen/transactions/byte_field.h"

namespace jogeon {

namespace reply_record {

inline constexpr ByteField kDataLength{0, 4};
inline constexpr ByteField kPackets{139, 16};
inline constexpr std::size_t kSize = 155;

}  // namespace reply_record

// The block of a reply with this data, for the host.
std::string BuildReplyRecord(std::string_view data);

// The data, a view into `block`. None when there is no first pointer, or when a length or an offset points
// outside the block.
std::optional<std::string_view> ReplyData(std::string_view block);

}  // namespace jogeon
