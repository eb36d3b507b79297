#include "screen/transactions/list_request.h"

#include "screen/text/bytes.h"

namespace jogeon {

std::string ComposeListRequest(ListStep step, std::string_view userId, std::string_view number,
                               std::string_view version) {
    using namespace list_request;
    std::string payload(kSize, ' ');
    Write(payload, kLetter, "V");
    Write(payload, kStep, std::string_view(reinterpret_cast<const char*>(&step), 1));
    Write(payload, kUserId, userId);
    Write(payload, kNumber, number);
    Write(payload, kVersion, version);
    return payload;
}

ListReply ReadListReply(std::string_view data) {
    using namespace list_reply;
    ListReply reply;
    const auto says = [&](ListAnswer answer, std::size_t least) {
        return data.size() >= least && static_cast<ListAnswer>(data[kAnswer.offset]) == answer;
    };
    if (says(ListAnswer::Equal, kAnswer.End())) reply.answer = ListAnswer::Equal;
    if (says(ListAnswer::VersionOnly, kVersion.End())) reply.answer = ListAnswer::VersionOnly;
    reply.version = TrimRight(Read(data, kVersion));
    if (!says(ListAnswer::Data, kRecords)) return reply;
    reply.answer = ListAnswer::Data;
    reply.more = Read(data, kMore) == "1";
    reply.number = Read(data, kNumber);
    const std::string_view count = Trim(Read(data, kCount));
    if (!count.empty() && count.find_first_not_of("0123456789") == count.npos) reply.count = Atoi(count);
    reply.records = data.substr(kRecords);
    return reply;
}

}  // namespace jogeon
