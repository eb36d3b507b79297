// The condition block: 71 bytes that carry one condition to and from the server.
//
// The parameters stand in slots by role; which slots there are depends on the indicator's family. The
// tables here serve encoding and decoding alike.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "screen/transactions/byte_field.h"

namespace jogeon {

class CIndexInfo;

inline constexpr std::size_t kConditionBlockSize = 71;

namespace condition_block {

inline constexpr ByteField kFamily{0, 1};
inline constexpr ByteField kShowValue{1, 1};
inline constexpr ByteField kInUse{2, 1};
inline constexpr ByteField kLetter{3, 1};
inline constexpr ByteField kKey{4, 6};
inline constexpr ByteField kNumber{10, 3};

// LayoutF has its own slots, because the sub-type byte decides where roles 60 and 61 stand.
inline constexpr ByteField kFilterOption{13, 1};
inline constexpr ByteField kFilterSubType{14, 1};
inline constexpr ByteField kFilterFirst{15, 9};
inline constexpr ByteField kFilterSecond{24, 9};

enum class SlotForm {
    FirstChar,   // the value's first byte, if it has one
    Right,       // right-justified, cut to the width
    RightIfAny,  // the same, but an empty value leaves the slot alone
};

struct RoleSlot {
    int role = 0;
    SlotForm form = SlotForm::Right;
    ByteField field;
};

// The slots of family 'B', 'T', 'P' or 'R', in byte order; none for 'F' and any other letter.
std::span<const RoleSlot> LayoutOf(char family);

// The family letter of an indicator key by its first two digits; a blank for a family with no layout.
char FamilyLetter(std::string_view key);

}  // namespace condition_block

// The 71 bytes of a condition, its letter included, from m_RoleValues. Values longer than their slot are cut.
std::string BuildConditionBlock(const CIndexInfo& condition);

// What a block says.
struct DecodedBlock {
    char family = ' ';
    bool showValue = false;
    bool inUse = false;
    char letter = ' ';
    std::string key;                   // six characters, trimmed
    int number = 0;                    // the indicator number that is sent
    int mode = 0;                      // selector of an 'F' block, 0 to 3; 0 for other families
    std::map<int, std::string> roles;  // value by role, trimmed; empty slots are absent
};

// None unless `block` has exactly 71 bytes.
std::optional<DecodedBlock> DecodeConditionBlock(std::string_view block);

}  // namespace jogeon
