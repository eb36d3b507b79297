#include "server/service/store_replies.h"

#include "screen/transactions/list_request.h"
#include "server/service/store_layout.h"

namespace jogeon::service {
namespace {

constexpr char kReorder = 'C';
constexpr char kDelete = 'D';
constexpr std::string_view kSuccess = "1";
constexpr std::string_view kFailure = "0";
constexpr std::string_view kNoMore = "0";
constexpr std::string_view kMore = "1";

std::string ListHead(ListAnswer answer) {
    const char letter = static_cast<char>(answer);
    std::string head(list_reply::kRecords, ' ');
    Write(head, list_reply::kLetter, "V");
    Write(head, list_reply::kAnswer, {&letter, 1});
    return head;
}

std::string TwoDigits(int number) {
    return ZeroPadded(number, 2);
}

// The record with what stands in the store beside it.
std::string SentRecord(const store::StoredSet& set, std::string_view user) {
    std::string record = set.record;
    Write(record, condition_header::kUserId, user);
    Write(record, condition_header::kNumber, TwoDigits(set.number));
    for (std::size_t at = kConditionHeaderSize; at + kConditionBlockSize <= record.size();
         at += kConditionBlockSize) {
        std::string block = record.substr(at, kConditionBlockSize);
        if (Read(block, condition_block::kKey) != change_rate_mark::kKey) continue;
        Write(block, change_rate_mark::kField, change_rate_mark::kMark);
        record.replace(at, kConditionBlockSize, block);
    }
    return record;
}

std::string CommandReply(char letter, std::string_view result, std::string_view number,
                         std::string_view version) {
    const bool reorder = letter == kReorder;
    std::string reply(reorder ? reorder_reply::kSize : set_reply::kSize, ' ');
    Write(reply, set_reply::kLetter, {&letter, 1});
    Write(reply, set_reply::kResult, result);
    if (!reorder) Write(reply, set_reply::kNumber, number);
    Write(reply, reorder ? reorder_reply::kVersion : set_reply::kVersion, version);
    return reply;
}

}  // namespace

std::string BuildListEqual() {
    return ListHead(ListAnswer::Equal);
}

std::string BuildListPacket(const store::Listing& listing, std::string_view told, std::string_view user) {
    std::string packet = ListHead(ListAnswer::Data);
    Write(packet, list_reply::kMore, listing.more ? kMore : kNoMore);
    if (listing.more) Write(packet, list_reply::kNumber, TwoDigits(listing.sets.back().number + 1));
    Write(packet, list_reply::kVersion, told);
    Write(packet, list_reply::kCount, ZeroPadded(static_cast<int>(listing.sets.size()), 4));
    for (const store::StoredSet& set : listing.sets) packet += SentRecord(set, user);
    return packet;
}

std::string BuildDone(char letter, const store::Change& change) {
    return CommandReply(letter, kSuccess, letter == kDelete ? "" : TwoDigits(change.number), change.version);
}

std::string BuildFailed(char letter, std::string_view version) {
    return CommandReply(letter, kFailure, "", version);
}

}  // namespace jogeon::service
