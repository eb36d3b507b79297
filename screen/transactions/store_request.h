// The payloads that change the user's stored sets: "A" and "E" save one, "D" deletes one, "C" orders them.
//
// Each carries the version of the user's file, by which the server refuses what rests on an older state.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/transactions/condition_header.h"

namespace jogeon {

class CIndexInfo;

namespace store_request {  // "A", "E" and "D"

inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kVersion{1, 7};
inline constexpr std::size_t kHeader = 8;  // a condition header, then the blocks
inline constexpr std::size_t kDeleteBlockPlaces = 20;

}  // namespace store_request

namespace reorder_request {  // "C"

inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kVersion{1, 7};
inline constexpr ByteField kUserId{8, 8};
inline constexpr ByteField kCount{16, 4};
inline constexpr std::size_t kNumbers = 20;  // two characters each

}  // namespace reorder_request

// Request keys.
inline constexpr std::uint8_t kReorderKey = 0xa0;
inline constexpr std::uint8_t kSaveKey = 0xa2;
inline constexpr std::uint8_t kSaveAsKey = 0xa3;
inline constexpr std::uint8_t kRenameKey = 0xa4;
inline constexpr std::uint8_t kDeleteKey = 0xa5;

inline constexpr std::size_t kMostConditions = 20;  // of one set
inline constexpr std::size_t kMostNameBytes = condition_header::kName.width;

// What is on the screen, to be saved.
struct SaveInputs {
    HeaderSource header;
    std::vector<const CIndexInfo*> conditions;  // in list order, checked or not
    std::string expression;                     // compact form
    std::string version;
};

// The payload of "E" for an existing number, of "A" where `number` is empty. The name is the one given,
// whatever the label shows. None when there is no condition, or when conditions, name or expression don't fit
// their places: nothing is cut.
std::optional<std::string> BuildSaveRequest(const SaveInputs& inputs, std::string_view name,
                                            std::string_view number);

// The payload of "D": the stored record, its blocks filled up to 20 places.
std::string BuildDeleteRequest(const CSavedIndexInfo& saved, std::string_view userId,
                               std::string_view version);

// The payload of "C": the sets' numbers in their new order.
std::string BuildReorderRequest(std::string_view userId, std::string_view version,
                                const std::vector<std::string>& numbers);

}  // namespace jogeon
