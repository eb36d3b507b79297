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
    const std::string_view answer = Read(data, kAnswer);
    if (answer.empty()) return reply;
    reply.answer = static_cast<ListAnswer>(answer.front());
    reply.version = LeftIn(Read(data, kVersion), kVersion.width);
    return reply;
}

}  // namespace jogeon
