#include "screen/transactions/stored_condition.h"

#include <string>

#include "screen/transactions/block_values.h"
#include "screen/transactions/condition_block.h"
#include "screen/transactions/condition_header.h"

namespace jogeon {
namespace {

constexpr char kKeyEnding[] = "0008";

// The two indicators that share the six characters of a block's key. Two marks in the block tell the second;
// so does a catalogue that doesn't have the first.
constexpr char kSharedKey[] = "0401030008";
constexpr char kSecondOfShared[] = "0401030009";
constexpr ByteField kSecondMarks{28, 2};

std::string IndicatorKey(std::string_view block, const Catalogue& catalogue) {
    std::string key = LeftIn(Read(block, condition_block::kKey), condition_block::kKey.width) + kKeyEnding;
    if (key != kSharedKey) return key;
    const bool second = Read(block, kSecondMarks) == "VV" || !catalogue.FindIndexByKey(key);
    return second ? kSecondOfShared : key;
}

// The condition of a block; null where the catalogue doesn't have its indicator.
std::unique_ptr<CIndexInfo> DecodeCondition(std::string_view block, const Catalogue& catalogue) {
    auto condition = catalogue.MakeCondition(IndicatorKey(block, catalogue));
    const auto decoded = DecodeConditionBlock(block);
    if (!condition || !decoded) return nullptr;
    condition->m_bChecked = decoded->inUse ? 1 : 0;
    condition->m_bShowValue = decoded->showValue ? 1 : 0;
    condition->m_chLetter = decoded->letter;
    TakeBlockValues(block, *decoded, *condition);
    return condition;
}

std::shared_ptr<CSavedIndexInfo> DecodeHeader(const ConditionHeader& header) {
    auto set = std::make_shared<CSavedIndexInfo>();
    static_cast<TargetFields&>(*set) = header.target;
    set->m_strKey = header.number;
    set->Name = header.name;
    set->TypePosition = header.buy ? 1 : 0;
    set->Exp = header.exp;
    set->Count = header.count;
    return set;
}

}  // namespace

bool IsSetNumber(std::string_view text) {
    const auto digit = [](char c) { return c >= '0' && c <= '9'; };
    return text.size() == condition_header::kNumber.width && digit(text[0]) && digit(text[1]);
}

std::optional<std::size_t> StoredConditionLength(std::string_view data) {
    using namespace condition_header;
    if (data.size() < kConditionHeaderSize || !IsSetNumber(Read(data, kNumber))) return std::nullopt;
    if (!IsSetNumber(Read(data, kCount))) return std::nullopt;  // two digits as well
    const auto count = static_cast<std::size_t>(ReadNumber(data, kCount));
    const std::size_t length = kConditionHeaderSize + count * kConditionBlockSize;
    return length <= data.size() ? std::optional(length) : std::nullopt;
}

std::shared_ptr<CSavedIndexInfo> DecodeStoredCondition(std::string_view data, const Catalogue& catalogue,
                                                       std::size_t& outLength) {
    const auto length = StoredConditionLength(data);
    outLength = length.value_or(data.size());
    const auto header = DecodeConditionHeader(data);
    if (!length || !header) return nullptr;
    auto set = DecodeHeader(*header);
    for (std::size_t place = kConditionHeaderSize; place < *length; place += kConditionBlockSize) {
        auto condition = DecodeCondition(data.substr(place, kConditionBlockSize), catalogue);
        if (!condition) return nullptr;
        set->m_Conditions.push_back(std::move(condition));
    }
    return set;
}

}  // namespace jogeon
