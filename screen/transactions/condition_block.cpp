#include "screen/transactions/condition_block.h"

#include <algorithm>
#include <array>

#include "screen/condition/index_info.h"

namespace jogeon {

using namespace condition_block;

namespace {

constexpr RoleSlot kLayoutB[] = {
    {20, SlotForm::FirstChar, {13, 1}}, {30, SlotForm::RightIfAny, {14, 2}},
    {40, SlotForm::Right, {16, 3}},     {41, SlotForm::Right, {19, 3}},
    {42, SlotForm::Right, {22, 3}},     {43, SlotForm::Right, {25, 3}},
    {50, SlotForm::FirstChar, {28, 1}}, {51, SlotForm::FirstChar, {29, 1}},
    {52, SlotForm::FirstChar, {30, 1}}, {53, SlotForm::FirstChar, {31, 1}},
    {60, SlotForm::Right, {32, 9}},     {61, SlotForm::Right, {41, 9}},
    {62, SlotForm::Right, {50, 9}},
};

constexpr RoleSlot kLayoutT[] = {
    {20, SlotForm::FirstChar, {13, 1}}, {30, SlotForm::RightIfAny, {14, 2}},
    {40, SlotForm::Right, {16, 3}},     {41, SlotForm::Right, {19, 3}},
    {42, SlotForm::Right, {22, 3}},     {43, SlotForm::Right, {25, 3}},
    {44, SlotForm::Right, {28, 3}},     {45, SlotForm::Right, {31, 3}},
    {46, SlotForm::Right, {34, 3}},     {50, SlotForm::FirstChar, {37, 1}},
    {51, SlotForm::FirstChar, {38, 1}}, {52, SlotForm::FirstChar, {39, 1}},
    {53, SlotForm::FirstChar, {40, 1}}, {54, SlotForm::FirstChar, {41, 1}},
    {55, SlotForm::FirstChar, {42, 1}}, {56, SlotForm::FirstChar, {43, 1}},
    {60, SlotForm::Right, {44, 9}},     {61, SlotForm::Right, {53, 9}},
    {62, SlotForm::Right, {62, 9}},
};

constexpr RoleSlot kLayoutP[] = {
    {20, SlotForm::FirstChar, {13, 1}},
    {30, SlotForm::RightIfAny, {14, 2}},
};

constexpr RoleSlot kLayoutR[] = {
    {50, SlotForm::FirstChar, {13, 1}},
    {60, SlotForm::RightIfAny, {14, 4}},
};

// How the selected option of an 'F' condition shows: its sub-type byte, and the roles of the two values. A
// role of 0 leaves the place blank. Option 0 is told by role 50 instead.
struct FilterMode {
    char subType;
    int firstRole;
    int secondRole;
};
constexpr FilterMode kFilterModes[] = {{' ', 0, 0}, {'3', 60, 61}, {'4', 60, 0}, {'5', 0, 61}};
constexpr char kFirstPlace = '1';  // the role 50 that puts role 60 of option 0 in the first place

// The texts of the roles. A role that has none leaves the text of the lookup before it in force.
class RoleTexts {
public:
    explicit RoleTexts(const std::map<int, std::string>& values) : values_(values) {}

    std::string_view Of(int role) {
        const auto found = values_.find(role);
        if (found != values_.end()) text_ = found->second;
        return text_;
    }

private:
    const std::map<int, std::string>& values_;
    std::string_view text_;
};

void WriteSlot(std::string& block, const RoleSlot& slot, std::string_view value) {
    if (value.empty() && slot.form != SlotForm::Right) return;
    if (slot.form == SlotForm::FirstChar) {
        block[slot.field.offset] = value.front();
    } else {
        WriteRight(block, slot.field, value);
    }
}

void WriteRoles(std::string& block, std::span<const RoleSlot> layout, const CIndexInfo& condition) {
    for (const RoleSlot& slot : layout) {
        const auto value = condition.m_RoleValues.find(slot.role);
        if (value != condition.m_RoleValues.end()) WriteSlot(block, slot, value->second);
    }
}

void WriteFilter(std::string& block, const CIndexInfo& condition, int mode) {
    RoleTexts texts(condition.m_RoleValues);
    Write(block, kFilterOption, texts.Of(20));
    if (mode < 0 || mode >= static_cast<int>(std::size(kFilterModes))) return;
    if (mode == 0) {
        const std::string_view subType = texts.Of(50);
        Write(block, kFilterSubType, subType);
        const bool first = !subType.empty() && subType.front() == kFirstPlace;
        const ByteField place = first ? kFilterFirst : kFilterSecond;
        WriteRight(block, place, texts.Of(60));
        return;
    }
    const FilterMode& form = kFilterModes[mode];
    block[kFilterSubType.offset] = form.subType;
    if (form.firstRole) WriteRight(block, kFilterFirst, texts.Of(form.firstRole));
    if (form.secondRole) WriteRight(block, kFilterSecond, texts.Of(form.secondRole));
}

void Keep(DecodedBlock& decoded, int role, std::string_view slice) {
    const std::string_view value = Trim(slice);
    if (!value.empty()) decoded.roles[role] = value;
}

void ReadFilter(std::string_view block, DecodedBlock& decoded) {
    Keep(decoded, 20, Read(block, kFilterOption));
    const char subType = block[kFilterSubType.offset];
    for (int mode = 1; mode < static_cast<int>(std::size(kFilterModes)); ++mode) {
        const FilterMode& form = kFilterModes[mode];
        if (form.subType != subType) continue;
        decoded.mode = mode;
        if (form.firstRole) Keep(decoded, form.firstRole, Read(block, kFilterFirst));
        if (form.secondRole) Keep(decoded, form.secondRole, Read(block, kFilterSecond));
        return;
    }
    Keep(decoded, 50, Read(block, kFilterSubType));
    Keep(decoded, 60, Read(block, subType == kFirstPlace ? kFilterFirst : kFilterSecond));
}

}  // namespace

namespace condition_block {

std::span<const RoleSlot> LayoutOf(char family) {
    switch (family) {
        case 'B':
            return kLayoutB;
        case 'T':
            return kLayoutT;
        case 'P':
            return kLayoutP;
        case 'R':
            return kLayoutR;
        default:
            return {};
    }
}

char FamilyLetter(std::string_view key) {
    switch (Atoi(key.substr(0, 2))) {
        case 1:
            return 'T';
        case 4:
            return 'B';
        case 6:
            return 'P';
        case 7:
            return 'F';
        case 8:
            return 'R';
        default:
            return ' ';
    }
}

}  // namespace condition_block

std::string BuildConditionBlock(const CIndexInfo& condition) {
    std::string block(kConditionBlockSize, ' ');
    const char family = FamilyLetter(condition.m_strKey);
    Write(block, kShowValue, condition.m_bShowValue ? "1" : "0");
    Write(block, kInUse, condition.m_bChecked ? "1" : "0");
    block[kLetter.offset] = condition.m_chLetter;
    if (family == ' ') return block;

    block[kFamily.offset] = family;
    Write(block, kKey, condition.m_strKey);
    int number = condition.GetEffectiveIndexNo();
    if (family == 'F') {
        // The option travels in the sub-type byte, so the number is the indicator's own, even where the
        // condition counts no selector in and the difference is negative.
        const CIndexField* selector =
            condition.m_pFields ? FindFieldByRole(*condition.m_pFields, kRoleSelector) : nullptr;
        const int mode = selector ? selector->m_nSelected : 0;
        number -= mode;
        WriteFilter(block, condition, mode);
    } else {
        WriteRoles(block, LayoutOf(family), condition);
    }
    Write(block, kNumber, ZeroPadded(number, static_cast<int>(kNumber.width)));
    return block;
}

std::optional<DecodedBlock> DecodeConditionBlock(std::string_view block) {
    if (block.size() != kConditionBlockSize) return std::nullopt;
    DecodedBlock decoded;
    decoded.family = block[kFamily.offset];
    decoded.showValue = Read(block, kShowValue) == "1";
    decoded.inUse = Read(block, kInUse) == "1";
    decoded.letter = block[kLetter.offset];
    decoded.key = Trim(Read(block, kKey));
    decoded.number = ReadNumber(block, kNumber);
    if (decoded.family == 'F') ReadFilter(block, decoded);
    for (const RoleSlot& slot : LayoutOf(decoded.family)) Keep(decoded, slot.role, Read(block, slot.field));
    return decoded;
}

}  // namespace jogeon
