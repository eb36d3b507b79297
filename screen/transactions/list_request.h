// The version check of the user's condition list, "V": its request and its reply, which brings the sets where
// the user has an older state.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "screen/transactions/byte_field.h"

namespace jogeon {

namespace list_request {

inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kStep{1, 1};
inline constexpr ByteField kUserId{2, 8};
inline constexpr ByteField kNumber{10, 2};   // "00", then what the last reply said
inline constexpr ByteField kVersion{12, 7};  // of the user's file
inline constexpr std::size_t kSize = 19;

}  // namespace list_request

namespace list_reply {

inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kAnswer{1, 1};
inline constexpr ByteField kMore{2, 1};     // "1" when more packets follow
inline constexpr ByteField kNumber{11, 2};  // where the next packet goes on
inline constexpr ByteField kVersion{13, 7};
inline constexpr ByteField kCount{20, 4};  // records in this packet
inline constexpr std::size_t kRecords = 24;

}  // namespace list_reply

enum class ListStep : char { First = '0', Following = '1' };
enum class ListAnswer : char { Data = 'D', Equal = 'E', VersionOnly = 'Z' };

inline constexpr std::uint8_t kFirstListKey = 0xa1;

// The key of a request for what follows `blocks` records.
constexpr std::uint8_t FollowingListKey(int blocks) {
    return static_cast<std::uint8_t>(0x20 + blocks);
}

// The 19 bytes of the request.
std::string ComposeListRequest(ListStep step, std::string_view userId, std::string_view number,
                               std::string_view version);

struct ListReply {
    ListAnswer answer{};       // none of the three where the reply is too short for it or says something else
    std::string version;       // trimmed on the right
    bool more = false;         // further packets follow
    std::string number;        // where the next packet goes on
    int count = -1;            // records that this packet says to hold; below 0 where it says no number
    std::string_view records;  // of the data that was read
};

ListReply ReadListReply(std::string_view data);

}  // namespace jogeon
