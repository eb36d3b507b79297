#include "screen/transactions/condition_header.h"

#include <algorithm>

#include "screen/condition/saved_index_info.h"
#include "screen/text/cp949.h"

namespace jogeon {

using namespace condition_header;

namespace {

constexpr char kNoNumber[] = "99";

// A one-digit field of the target and the member that it carries.
struct DigitField {
    ByteField field;
    int TargetFields::*member;
};

constexpr DigitField kKinds[] = {
    {kUpjong, &TargetFields::Upjong},
    {kPortfolio, &TargetFields::Portfolio},
    {kRecommend, &TargetFields::Recommend},
};

constexpr DigitField kExcepts[] = {
    {kExcept1, &TargetFields::Except1}, {kExcept2, &TargetFields::Except2},
    {kExcept3, &TargetFields::Except3}, {kExcept4, &TargetFields::Except4},
    {kExcept5, &TargetFields::Except5}, {kExcept6, &TargetFields::Except6},
    {kExcept7, &TargetFields::Except7}, {kExcept10, &TargetFields::Except10},
};

// The months that have a code of their own; the code is the place. Any other month is sent behind code 5.
constexpr int kCodedMonths[] = {0, 3, 6, 9, 12};
constexpr int kOtherMonth = 5;

void WriteGroup(std::string& block, const std::vector<std::string>& group) {
    const std::size_t count = std::min(group.size(), kMaxGroupCodes);
    Write(block, kGroupCount, ZeroPadded(static_cast<int>(count), 4));
    for (std::size_t i = 0; i < count; ++i) {
        Write(block, {kGroupCodes.offset + i * kGroupCodeWidth, kGroupCodeWidth}, group[i]);
    }
}

std::vector<std::string> ReadGroup(std::string_view block) {
    const std::string_view codes = Read(block, kGroupCodes);
    const int count = std::clamp(ReadNumber(block, kGroupCount), 0, static_cast<int>(kMaxGroupCodes));
    std::vector<std::string> group;
    group.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        group.emplace_back(Field(codes, static_cast<std::size_t>(i) * kGroupCodeWidth, kGroupCodeWidth));
    }
    return group;
}

void WriteMonth(std::string& block, int month) {
    const auto* coded = std::find(std::begin(kCodedMonths), std::end(kCodedMonths), month);
    const bool other = coded == std::end(kCodedMonths);
    Write(block, kMonthCode, Decimal(other ? kOtherMonth : static_cast<int>(coded - kCodedMonths)));
    Write(block, kMonthValue, other ? ZeroPadded(month, 2) : "");
}

int ReadMonth(std::string_view block) {
    const char code = block[kMonthCode.offset];
    if (code < '0' || code > '0' + kOtherMonth) return 0;
    return code == '0' + kOtherMonth ? ReadNumber(block, kMonthValue) : kCodedMonths[code - '0'];
}

void WriteTarget(std::string& block, const TargetFields& target) {
    const bool hasAccount = target.Portfolio == 2 || target.Portfolio == 3;
    Write(block, kAcc, hasAccount ? target.Acc : std::string());
    for (const DigitField& kind : kKinds) Write(block, kind.field, Decimal(target.*kind.member));
    for (const DigitField& except : kExcepts) Write(block, except.field, Decimal(target.*except.member));
    Write(block, kUnusedExcepts, "00");
    WriteGroup(block, target.Group);
    WriteMonth(block, target.Month);
}

TargetFields ReadTarget(std::string_view block) {
    TargetFields target;
    target.Acc = TrimRight(Read(block, kAcc));
    for (const DigitField& kind : kKinds) target.*kind.member = ReadNumber(block, kind.field);
    for (const DigitField& except : kExcepts)
        target.*except.member = Read(block, except.field) == "1" ? 1 : 0;
    target.Group = ReadGroup(block);
    target.Month = ReadMonth(block);
    return target;
}

std::string NameFor(const HeaderSource& source, const std::optional<std::string>& nameOverride) {
    if (source.currentSaved) return nameOverride.value_or(source.currentSaved->Name);
    if (!source.nameLabel.empty()) return source.nameLabel;
    return nameOverride.value_or("임시조건"_cp949);
}

}  // namespace

std::string EncodeConditionHeader(const ConditionHeader& header) {
    std::string block(kConditionHeaderSize, ' ');
    Write(block, kUserId, header.userId);
    Write(block, kNumber, header.number);
    Write(block, kName, header.name);
    Write(block, kTypePosition, header.buy ? "2" : "1");
    WriteTarget(block, header.target);
    Write(block, kExp, header.exp);
    Write(block, kCount, ZeroPadded(header.count, 2));
    return block;
}

std::optional<ConditionHeader> DecodeConditionHeader(std::string_view bytes) {
    if (bytes.size() < kConditionHeaderSize) return std::nullopt;
    ConditionHeader header;
    header.userId = TrimRight(Read(bytes, kUserId));
    header.number = Read(bytes, kNumber);
    header.name = TrimRight(Read(bytes, kName));
    header.buy = Read(bytes, kTypePosition) == "2";
    header.target = ReadTarget(bytes);
    header.exp = TrimRight(Read(bytes, kExp));
    header.count = ReadNumber(bytes, kCount);
    return header;
}

std::string SearchHandleOf(const CSavedIndexInfo* currentSaved) {
    return currentSaved && !currentSaved->m_strKey.empty() ? currentSaved->m_strKey : kNoNumber;
}

std::string BuildConditionHeader(const HeaderSource& source, std::string_view expression, int count,
                                 const std::optional<std::string>& nameOverride) {
    ConditionHeader header;
    header.userId = source.userId;
    header.number = SearchHandleOf(source.currentSaved);
    header.name = NameFor(source, nameOverride);
    header.buy = source.buy;
    header.target = source.target;
    header.exp = expression;
    header.count = count;
    return EncodeConditionHeader(header);
}

std::string BuildSavedConditionHeader(const CSavedIndexInfo& saved, std::string_view userId) {
    ConditionHeader header;
    header.userId = userId;
    header.number = saved.m_strKey;
    header.name = saved.Name;
    header.buy = saved.TypePosition == 1;
    header.target = saved;
    header.exp = saved.Exp;
    header.count = saved.Count;
    return EncodeConditionHeader(header);
}

}  // namespace jogeon
