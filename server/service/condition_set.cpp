#include "server/service/condition_set.h"

#include <algorithm>
#include <memory>

#include "screen/condition/index_info.h"
#include "screen/expression/expression_check.h"
#include "screen/text/cp949.h"
#include "server/engine/expression.h"
#include "server/engine/universe.h"
#include "server/indicators/parameters.h"
#include "server/service/store_layout.h"

namespace jogeon::service {
namespace {

namespace slots = condition_header;
using engine::Quoted;

constexpr int kMostMonth = 12;
constexpr int kMostKind = 3;  // of a portfolio or recommendation

void Demand(bool right, const std::string& fault) {
    if (!right) throw BadRequest(fault);
}

bool IsPrintable(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

bool IsCode(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    });
}

bool IsBlank(std::string_view bytes) {
    return bytes.find_first_not_of(' ') == std::string_view::npos;
}

// Whole characters of CP949, none of them a control character. No character of CP949 is U+FFFD.
bool IsText(std::string_view bytes) {
    const bool controls = std::any_of(bytes.begin(), bytes.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
    });
    return !controls && ToUtf8(bytes).find("\xEF\xBF\xBD") == std::string::npos;
}

void CheckTarget(const TargetFields& target) {
    Demand(target.Upjong <= 1 && target.Portfolio <= kMostKind && target.Recommend <= kMostKind,
           "the target is of no known kind");
    Demand(target.Month >= 0 && target.Month <= kMostMonth, "the settlement month is not from 1 to 12");
    Demand(IsPrintable(target.Acc), "the account can't be read");
    for (const std::string& code : target.Group) Demand(IsCode(code), Quoted(code) + " is no group code");
}

void CheckExpression(const std::string& exp) {
    const bool compact = exp.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ&|!()") == std::string::npos;
    Demand(compact && CheckExpressionText(exp).valid && engine::Expression::Parse(exp),
           Quoted(exp) + " is no expression over condition letters");
}

// A header that isn't what it says comes out differently when what was read is written.
void CheckIsCanonical(std::string_view bytes, const ConditionHeader& header) {
    const std::string written = EncodeConditionHeader(header);
    const auto [found, wanted] = std::mismatch(bytes.begin(), bytes.end(), written.begin());
    Demand(found == bytes.end(), "the condition header has something else than it may have at byte " +
                                     std::to_string(found - bytes.begin()));
}

ConditionHeader ReadHeader(std::string_view bytes) {
    Demand(bytes.size() == kConditionHeaderSize, "the request ends too early");
    const ConditionHeader header = *DecodeConditionHeader(bytes);
    Demand(header.count >= 1 && header.count <= kMostBlocks,
           Quoted(Read(bytes, slots::kCount)) + " conditions: a set has 01 to 20");
    CheckIsCanonical(bytes, header);
    Demand(!header.name.empty() && IsText(header.name), "the set's name is none, or is no CP949 text");
    CheckTarget(header.target);
    CheckExpression(header.exp);
    return header;
}

// The block without its parameters: what is left must be blank behind the number.
std::string WithoutParameters(std::string_view block, char family) {
    using namespace condition_block;
    std::string rest(block);
    for (const RoleSlot& slot : LayoutOf(family)) Write(rest, slot.field, "");
    if (family == 'F')
        for (ByteField field : {kFilterOption, kFilterSubType, kFilterFirst, kFilterSecond})
            Write(rest, field, "");
    return rest;
}

bool IsFlag(std::string_view field) {
    return field == "0" || field == "1";
}

DecodedBlock ReadBlock(std::string_view bytes, int place) {
    using namespace condition_block;
    const std::string which = "condition " + std::to_string(place);
    const DecodedBlock block = *DecodeConditionBlock(bytes);
    Demand(IsPrintable(bytes) && bytes.find_first_of(";|^") == std::string_view::npos,
           which + " has a character that no value may have");
    Demand(IsFlag(Read(bytes, kShowValue)) && IsFlag(Read(bytes, kInUse)), which + " has a flag not 0 or 1");
    Demand(block.letter >= 'A' && block.letter <= 'Z', which + " has no letter");
    PayloadReader(Read(bytes, kNumber)).TakeNumber(kNumber.width);
    try {
        indicators::Parameters{block};
    } catch (const indicators::BadCondition& bad) {
        throw BadRequest(bad.what());
    }
    Demand(IsBlank(std::string_view(WithoutParameters(bytes, block.family)).substr(kNumber.End())),
           which + " has something beside its values");
    return block;
}

std::vector<DecodedBlock> ReadBlocks(std::string_view bytes, int count) {
    std::vector<DecodedBlock> blocks;
    std::string letters;
    for (int place = 1; place <= count; ++place) {
        const auto at = static_cast<std::size_t>(place - 1) * kConditionBlockSize;
        blocks.push_back(ReadBlock(bytes.substr(at, kConditionBlockSize), place));
        const char letter = blocks.back().letter;
        Demand(letters.find(letter) == std::string::npos,
               std::string("condition ") + letter + " is given twice");
        letters += letter;
    }
    return blocks;
}

}  // namespace

ConditionSet ReadConditionSet(std::string_view record) {
    ConditionSet set;
    set.header = ReadHeader(record.substr(0, kConditionHeaderSize));
    const std::string_view blocks = record.substr(kConditionHeaderSize);
    Demand(blocks.size() == static_cast<std::size_t>(set.header.count) * kConditionBlockSize,
           "the request has not as many conditions as it counts");
    set.blocks = ReadBlocks(blocks, set.header.count);
    return set;
}

std::string WriteConditionSet(const ConditionSet& set) {
    ConditionHeader header = set.header;
    header.count = static_cast<int>(set.blocks.size());
    std::string record = EncodeConditionHeader(header);
    for (const DecodedBlock& block : set.blocks) record += WriteBlock(block);
    return record;
}

std::string WriteBlock(const DecodedBlock& block) {
    CIndexInfo condition;
    condition.m_strKey = block.key;
    condition.m_bShowValue = block.showValue;
    condition.m_bChecked = block.inUse;
    condition.m_chLetter = block.letter;
    condition.m_RoleValues = block.roles;
    condition.m_nIndexNo = block.number;
    if (block.family != 'F') return BuildConditionBlock(condition);
    // The mode is a selector's option there, which is taken off the number; and a value that is missing is
    // blank only if it is named.
    condition.m_nIndexNo += block.mode;
    condition.m_pFields = std::make_unique<FieldArray>();
    condition.m_pFields->push_back(std::make_unique<CIndexField>());
    condition.m_pFields->front()->m_nRole = kRoleSelector;
    condition.m_pFields->front()->m_nSelected = block.mode;
    for (int role : {20, 50, 60, 61}) condition.m_RoleValues.try_emplace(role);
    return BuildConditionBlock(condition);
}

}  // namespace jogeon::service
