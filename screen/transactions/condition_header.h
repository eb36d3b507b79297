// The condition header: 828 bytes that carry a condition set's name, target and expression.
//
// One table of fields serves writing and reading. All text is CP949.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screen/condition/target_fields.h"
#include "screen/transactions/byte_field.h"

namespace jogeon {

class CSavedIndexInfo;

inline constexpr std::size_t kConditionHeaderSize = 828;

namespace condition_header {

inline constexpr ByteField kUserId{0, 8};
inline constexpr ByteField kNumber{8, 2};
inline constexpr ByteField kName{10, 80};
inline constexpr ByteField kTypePosition{90, 1};  // "2" buy, "1" sell
inline constexpr ByteField kFiller{91, 4};
inline constexpr ByteField kUpjong{95, 1};
inline constexpr ByteField kPortfolio{96, 1};
inline constexpr ByteField kAcc{97, 11};
inline constexpr ByteField kRecommend{108, 1};
inline constexpr ByteField kGroupCount{109, 4};
inline constexpr ByteField kGroupCodes{113, 600};  // three bytes each
inline constexpr ByteField kExcept1{713, 1};
inline constexpr ByteField kExcept2{714, 1};
inline constexpr ByteField kExcept3{715, 1};
inline constexpr ByteField kExcept4{716, 1};
inline constexpr ByteField kExcept5{717, 1};
inline constexpr ByteField kExcept6{718, 1};
inline constexpr ByteField kExcept7{719, 1};
inline constexpr ByteField kUnusedExcepts{720, 2};  // always "00"
inline constexpr ByteField kExcept10{722, 1};
inline constexpr ByteField kMonthCode{723, 1};  // 0 all, 1 to 4 the quarters' ends, 5 the month that follows
inline constexpr ByteField kMonthValue{724, 2};
inline constexpr ByteField kExp{726, 100};
inline constexpr ByteField kCount{826, 2};

inline constexpr std::size_t kGroupCodeWidth = 3;
inline constexpr std::size_t kMaxGroupCodes = kGroupCodes.width / kGroupCodeWidth;

}  // namespace condition_header

// What a header says.
struct ConditionHeader {
    std::string userId;
    std::string number = "99";  // two characters; "99" where the set has no number
    std::string name;
    bool buy = false;
    TargetFields target;
    std::string exp;  // compact form
    int count = 0;    // condition blocks that follow
};

// The 828 bytes. Texts are cut to their fields, codes beyond the 200 that find room are left out.
std::string EncodeConditionHeader(const ConditionHeader& header);

// None when `bytes` are fewer than 828. Texts are trimmed on the right.
std::optional<ConditionHeader> DecodeConditionHeader(std::string_view bytes);

// What a header made from the screen is made from.
struct HeaderSource {
    std::string userId;
    const CSavedIndexInfo* currentSaved = nullptr;
    std::string nameLabel;  // text of the name label
    bool buy = false;       // the buy radio is on
    TargetFields target;
};

// The screen's `searchHandle` once a search with this set is sent: the set's number, else "99". A set whose
// save hasn't been answered has no number yet.
std::string SearchHandleOf(const CSavedIndexInfo* currentSaved);

// A header from the screen. With a current set its name is written unless there is an override; without one
// the label goes before the override, and "임시조건" stands where both are missing.
std::string BuildConditionHeader(const HeaderSource& source, std::string_view expression, int count,
                                 const std::optional<std::string>& nameOverride = std::nullopt);

// A header with every field from the saved set.
std::string BuildSavedConditionHeader(const CSavedIndexInfo& saved, std::string_view userId);

}  // namespace jogeon
