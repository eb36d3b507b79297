#include "screen/transactions/search_request.h"

#include <algorithm>
#include <utility>

#include "screen/condition/index_info.h"
#include "screen/expression/expression_characters.h"
#include "screen/expression/expression_text.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/transactions/condition_block.h"
#include "screen/transactions/packet_writer.h"

namespace jogeon {
namespace {

static_assert(kMaxExpressionBytes == kMaxExpressionTokens);  // what the box refuses is what the field holds

constexpr std::size_t kUserIdWidth = 8;
constexpr std::size_t kHandleWidth = 2;
constexpr std::size_t kFidWidth = 4;
constexpr std::size_t kCodeWidth = 12;
constexpr std::size_t kConditionSetOffset = 1 + 8 + 1;  // behind letter, window and scope

bool NeedsPrior(SearchScope scope) {
    return scope == SearchScope::Within || scope == SearchScope::Outside;
}

char ScopeCharacter(SearchScope scope) {
    return NeedsPrior(scope) ? static_cast<char>('0' + static_cast<int>(scope)) : '0';
}

void PutWindow(PacketWriter& writer, host::WindowHandle window) {
    // No "%0.8x": the precision alone gives the eight digits, and the flag beside it is refused by compilers.
    writer.PutFormat("%.8x", static_cast<unsigned>(window));
}

void PutWhole(PacketWriter& writer, const std::string& bytes) {
    writer.PutBytes(bytes.data(), bytes.size());
}

std::string PriorList(const PriorResult& prior) {
    PacketWriter writer(kPayloadBlockHint);
    writer.PutFormat("%04d", prior.received);
    for (const std::string& code : prior.codes) writer.PutField(code, kCodeWidth);
    return writer.Detach();
}

}  // namespace

std::optional<std::string> CompactExpression(std::string_view text,
                                             const std::function<bool(const std::string&)>& check,
                                             host::Questions& questions) {
    const std::string trimmed(Trim(text));
    if (!check(trimmed)) return std::nullopt;
    std::string compact = ToCompactForm(trimmed);
    if (compact.size() <= kMaxExpressionBytes) return compact;
    questions.Ask(CompactFormTooLong(static_cast<int>(compact.size())));
    return std::nullopt;
}

std::vector<const CIndexInfo*> CheckedConditions(const std::vector<const CIndexInfo*>& conditions) {
    std::vector<const CIndexInfo*> checked;
    std::copy_if(conditions.begin(), conditions.end(), std::back_inserter(checked),
                 [](const CIndexInfo* condition) { return condition->m_bChecked != 0; });
    return checked;
}

std::string ComposeConditionSet(const HeaderSource& header, std::string_view expression, int count,
                                const std::vector<const CIndexInfo*>& blocks) {
    std::string bytes = BuildConditionHeader(header, expression, count);
    for (const CIndexInfo* condition : blocks) bytes += BuildConditionBlock(*condition);
    return bytes;
}

std::string ComposeStart(host::WindowHandle window, char scope, const std::string& conditionSet,
                         const std::vector<std::string>& fids) {
    PacketWriter writer(kPayloadBlockHint);
    writer.PutChar('T');
    PutWindow(writer, window);
    writer.PutChar(scope);
    PutWhole(writer, conditionSet);
    PutWhole(writer, ComposeFidList(fids));
    return writer.Detach();
}

std::string_view ConditionSetIn(std::string_view payload) {
    const std::string_view set = payload.substr(std::min(payload.size(), kConditionSetOffset));
    const int count = Atoi(Field(set, condition_header::kCount.offset, condition_header::kCount.width));
    const auto blocks = static_cast<std::size_t>(std::max(count, 0));
    return set.substr(0, kConditionHeaderSize + blocks * kConditionBlockSize);
}

std::string ComposeFidList(const std::vector<std::string>& fids) {
    std::string list = ZeroPadded(static_cast<int>(fids.size()), 4);
    for (const std::string& fid : fids) list += RightIn(fid, kFidWidth);
    return list;
}

std::optional<std::string> ComposeSearch(const SearchInputs& inputs, ColumnTables& columns,
                                         host::Questions& questions) {
    if (inputs.conditions.empty()) return std::nullopt;
    if (NeedsPrior(inputs.scope) && !inputs.prior) return std::nullopt;
    const auto expression = CompactExpression(inputs.expressionText, inputs.checkExpression, questions);
    if (!expression) return std::nullopt;
    const auto checked = CheckedConditions(inputs.conditions);
    if (checked.empty()) return std::nullopt;

    columns.UpdateSequenceStart();
    const std::string set =
        ComposeConditionSet(inputs.header, *expression, static_cast<int>(checked.size()), checked);
    std::string payload =
        ComposeStart(inputs.window, ScopeCharacter(inputs.scope), set, SelectedFids(columns));
    if (NeedsPrior(inputs.scope)) payload += PriorList(*inputs.prior);
    return payload;
}

std::string ComposeNextPage(host::WindowHandle window, std::string_view userId, int resultHandle,
                            int received) {
    PacketWriter writer(kPayloadBlockHint);
    writer.PutChar('N');
    PutWindow(writer, window);
    writer.PutField(userId, kUserIdWidth);
    writer.PutFormat("%02d", resultHandle);
    writer.PutFormat("%04d", received);
    return writer.Detach();
}

std::string ComposeRelease(host::WindowHandle window, std::string_view userId,
                           std::string_view searchHandle) {
    PacketWriter writer(kPayloadBlockHint);
    writer.PutChar('Z');
    PutWindow(writer, window);
    writer.PutField(userId, kUserIdWidth);
    writer.PutField(searchHandle, kHandleWidth);
    return writer.Detach();
}

}  // namespace jogeon
