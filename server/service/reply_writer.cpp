#include "server/service/reply_writer.h"

#include <algorithm>

#include "screen/text/bytes.h"
#include "screen/transactions/search_reply.h"

namespace jogeon::service {
namespace {

namespace reply = search_reply;

constexpr char kSuccess = '1';
constexpr char kFailure = '0';

std::string ReplyHead(char letter, char result) {
    std::string head(reply::kColumns, ' ');
    Write(head, reply::kLetter, std::string_view(&letter, 1));
    Write(head, reply::kResult, std::string_view(&result, 1));
    return head;
}

void WriteNumber(std::string& block, ByteField field, std::size_t number) {
    Write(block, field, ZeroPadded(static_cast<int>(number), static_cast<int>(field.width)));
}

std::string ColumnList(const KeptResult& result) {
    std::string list;
    for (const engine::ReplyColumn* column : result.columns) list += RightIn(column->fid, reply::kFidWidth);
    for (const engine::ValueColumn& values : result.found.values)
        list += RightIn(engine::ValueColumnFid(values.letter), reply::kFidWidth);
    return list;
}

std::string Row(const KeptResult& result, std::size_t match, indicators::MarketDay& day) {
    const std::size_t stock = result.found.matches[match];
    std::string row = LeftIn(engine::MarketAndCode(day.GetMarket().Instruments()[stock]), reply::kCodeWidth);
    for (const engine::ReplyColumn* column : result.columns) row += engine::CellField(*column, day, stock);
    for (const engine::ValueColumn& values : result.found.values)
        row += engine::NumberField(engine::NumberText(values.values[match], values.decimals),
                                   engine::kValueColumnWidth);
    return row;
}

}  // namespace

std::string BuildPage(char letter, int handle, const KeptResult& result, std::size_t received,
                      indicators::MarketDay& day) {
    const std::size_t total = result.found.matches.size();
    const std::size_t end = std::min(received + kPageRows, total);
    std::string page = ReplyHead(letter, kSuccess);
    WriteNumber(page, reply::kResultHandle, static_cast<std::size_t>(handle));
    WriteNumber(page, reply::kTotal, total);
    WriteNumber(page, reply::kReceived, end);
    WriteNumber(page, reply::kRowCount, end - received);
    WriteNumber(page, reply::kColumnCount, result.columns.size() + result.found.values.size());
    page += ColumnList(result);
    for (std::size_t match = received; match < end; ++match) page += Row(result, match, day);
    return page;
}

std::string BuildFailure(char letter) {
    return ReplyHead(letter, kFailure);
}

}  // namespace jogeon::service
