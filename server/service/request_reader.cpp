#include "server/service/request_reader.h"

#include <algorithm>
#include <optional>

#include "screen/text/bytes.h"
#include "screen/transactions/condition_block.h"
#include "screen/transactions/condition_header.h"
#include "server/service/payload_reader.h"
#include "server/service/search_layout.h"

namespace jogeon::service {
namespace {

using engine::Scope;
namespace layout = search_request;

Scope ReadScope(std::string_view field) {
    if (field == "0") return Scope::Whole;
    if (field == "1") return Scope::Within;
    if (field == "2") return Scope::Outside;
    throw BadRequest(engine::Quoted(field) + " is no scope");
}

// The header's own reading takes an unknown month code for every month, which is another search.
void CheckMonth(std::string_view header) {
    const std::string_view code = Read(header, condition_header::kMonthCode);
    const int month = ReadNumber(header, condition_header::kMonthValue);
    const bool other = code == "5";
    if (code < "0" || code > "5" || (other && (month < 1 || month > 12)))
        throw BadRequest("the settlement month can't be read");
}

ConditionHeader ReadHeader(std::string_view bytes) {
    namespace slots = condition_header;
    const std::size_t groups = static_cast<std::size_t>(
        PayloadReader(Read(bytes, slots::kGroupCount)).TakeNumber(slots::kGroupCount.width));
    if (groups > slots::kMaxGroupCodes)
        throw BadRequest("the target names more groups than there is room for");
    CheckMonth(bytes);
    const int count = PayloadReader(Read(bytes, slots::kCount)).TakeNumber(slots::kCount.width);
    std::optional<ConditionHeader> header = DecodeConditionHeader(bytes);
    if (!header || header->count != count || header->target.Group.size() != groups)
        throw BadRequest("the condition header can't be read");
    return *std::move(header);
}

std::vector<DecodedBlock> ReadBlocks(PayloadReader& reader, int count) {
    std::vector<DecodedBlock> blocks;
    for (int i = 0; i < count; ++i) {
        std::optional<DecodedBlock> block = DecodeConditionBlock(reader.Take(kConditionBlockSize));
        if (!block) throw BadRequest("a condition block can't be read");
        blocks.push_back(*std::move(block));
    }
    return blocks;
}

engine::SearchOrder ReadOrder(PayloadReader& reader) {
    engine::SearchOrder order;
    ConditionHeader header = ReadHeader(reader.Take(kConditionHeaderSize));
    order.target = std::move(header.target);
    order.expression = std::move(header.exp);
    order.conditions = ReadBlocks(reader, header.count);
    return order;
}

std::vector<std::string> ReadFids(PayloadReader& reader) {
    const int count = reader.TakeNumber(layout::kCountWidth);
    const std::string_view list = reader.TakeList(count, layout::kFidWidth);
    std::vector<std::string> fids;
    for (std::size_t at = 0; at < list.size(); at += layout::kFidWidth) {
        const std::string_view fid = Trim(list.substr(at, layout::kFidWidth));
        fids.emplace_back(fid.substr(std::min(fid.find_first_not_of('0'), fid.size())));
    }
    return fids;
}

// The codes of the rows that a narrowing search refers to, their market letter cut off.
std::vector<std::string> ReadPriorCodes(PayloadReader& reader) {
    const int count = reader.TakeNumber(layout::kCountWidth);
    const std::string_view list = reader.TakeList(count, layout::kCodeWidth);
    std::vector<std::string> codes;
    for (std::size_t at = 0; at < list.size(); at += layout::kCodeWidth)
        codes.emplace_back(TrimRight(list.substr(at + 1, layout::kCodeWidth - 1)));
    return codes;
}

}  // namespace

SearchRequest ReadSearchRequest(std::string_view payload) {
    PayloadReader reader(payload);
    reader.Take(layout::kLetter.width + layout::kWindow.width);
    const Scope scope = ReadScope(reader.Take(layout::kScope.width));
    SearchRequest request{ReadOrder(reader), {}};
    request.order.scope = scope;
    request.fids = ReadFids(reader);
    if (request.order.scope != Scope::Whole) request.order.priorCodes = ReadPriorCodes(reader);
    reader.End();
    return request;
}

PageRequest ReadPageRequest(std::string_view payload) {
    namespace page = page_request;
    PayloadReader reader(payload);
    reader.Take(page::kResultHandle.offset);
    PageRequest request;
    request.resultHandle = reader.TakeNumber(page::kResultHandle.width);
    request.received = reader.TakeNumber(page::kReceived.width);
    reader.End();
    return request;
}

engine::SearchOrder ReadConditions(std::string_view record) {
    PayloadReader reader(record);
    engine::SearchOrder order = ReadOrder(reader);
    reader.End();
    return order;
}

}  // namespace jogeon::service
