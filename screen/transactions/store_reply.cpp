#include "screen/transactions/store_reply.h"

#include "screen/transactions/stored_condition.h"

namespace jogeon {
namespace {

std::optional<std::string> ReadVersionField(std::string_view data, ByteField field) {
    if (data.size() < field.End()) return std::nullopt;
    return std::string(TrimRight(Read(data, field)));
}

}  // namespace

StoreReply ReadStoreReply(std::string_view data) {
    using namespace store_reply;
    StoreReply reply;
    reply.version = ReadVersionField(data, kVersion);
    reply.success = reply.version && Read(data, kResult) != "0";
    if (!reply.success || Read(data, kLetter) == "D") return reply;
    reply.number = Read(data, kNumber);
    reply.success = IsSetNumber(reply.number);
    return reply;
}

StoreReply ReadReorderReply(std::string_view data) {
    using namespace reorder_reply;
    StoreReply reply;
    reply.version = ReadVersionField(data, kVersion);
    reply.success = reply.version && Read(data, kResult) == "1";
    return reply;
}

}  // namespace jogeon
