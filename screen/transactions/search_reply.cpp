#include "screen/transactions/search_reply.h"

#include <algorithm>

namespace jogeon {

using namespace search_reply;

namespace {

std::string_view WithoutLeadingZeros(std::string_view fid) {
    return fid.substr(std::min(fid.find_first_not_of('0'), fid.size()));
}

int ReadCount(std::string_view data, ByteField field) {
    return std::max(ReadNumber(data, field), 0);
}

// Takes the column list and what stands behind it; false if the list isn't all there.
bool ReadColumns(std::string_view data, SearchReply& reply) {
    if (data.size() < kColumns) return false;
    const auto count = static_cast<std::size_t>(ReadCount(data, kColumnCount));
    if (count > (data.size() - kColumns) / kFidWidth) return false;
    for (std::size_t i = 0; i < count; ++i) {
        reply.fids.push_back(WithoutLeadingZeros(Field(data, kColumns + i * kFidWidth, kFidWidth)));
    }
    reply.rows = data.substr(kColumns + count * kFidWidth);
    return true;
}

}  // namespace

std::optional<SearchReply> ParseSearchReply(std::string_view data) {
    if (data.size() < kResult.End()) return std::nullopt;
    SearchReply reply;
    if (Read(data, kResult) == "0") return reply;

    if (data.size() < kRowCount.End()) return std::nullopt;
    reply.outcome = ReplyOutcome::NoRows;
    reply.resultHandle = ReadCount(data, kResultHandle);
    reply.total = ReadCount(data, kTotal);
    reply.received = ReadCount(data, kReceived);
    reply.rowCount = ReadCount(data, kRowCount);
    if (reply.rowCount == 0) return reply;

    reply.outcome = ReplyOutcome::Rows;
    if (!ReadColumns(data, reply)) return std::nullopt;
    return reply;
}

void CutRow(std::string_view row, std::span<const int> widths, std::vector<std::string_view>& fields) {
    fields.clear();
    fields.push_back(TrimRight(row.substr(0, kCodeWidth)));
    std::size_t at = kCodeWidth;
    for (const int width : widths) {
        const auto bytes = static_cast<std::size_t>(std::max(width, 0));
        fields.push_back(TrimRight(Field(row, at, bytes)));
        at += bytes;
    }
}

std::size_t RowBytes(std::span<const int> widths) {
    std::size_t bytes = kCodeWidth;
    for (const int width : widths) bytes += static_cast<std::size_t>(std::max(width, 0));
    return bytes;
}

}  // namespace jogeon
