#include "server/service/store_requests.h"

#include "server/engine/universe.h"
#include "server/service/condition_set.h"

namespace jogeon::service {
namespace {

void CheckUser(std::string_view field, const Request& request) {
    if (request.user.empty() || field != LeftIn(request.user, field.size()) ||
        request.user.size() > field.size())
        throw BadRequest("it names the user " + engine::Quoted(TrimRight(field)));
}

int ReadSetNumber(std::string_view field) {
    const int number = PayloadReader(field).TakeNumber(condition_header::kNumber.width);
    if (number >= store::kMostSets) throw BadRequest(engine::Quoted(field) + " is no set's number");
    return number;
}

// The set of "A" and "E", checked, as it is stored.
std::string ReadRecord(const Request& request) {
    PayloadReader reader(request.payload);
    reader.Take(set_request::kHeader.offset);
    const std::string_view header = Read(request.payload, set_request::kHeader);
    CheckUser(Read(header, condition_header::kUserId), request);
    ConditionSet set =
        ReadConditionSet(std::string_view(request.payload).substr(set_request::kHeader.offset));
    set.header.userId.clear();
    set.header.number.clear();
    return WriteConditionSet(set);
}

}  // namespace

ListQuestion ReadListQuestion(const Request& request) {
    const std::string_view payload = request.payload;
    if (payload.size() != list_request::kSize) throw BadRequest("the request is not 19 bytes long");
    CheckUser(Read(payload, list_request::kUserId), request);
    ListQuestion question;
    question.step = static_cast<ListStep>(Read(payload, list_request::kStep).front());
    question.from = ReadSetNumber(Read(payload, list_request::kNumber));
    question.version = Read(payload, list_request::kVersion);
    const bool first = question.step == ListStep::First && question.from == 0;
    const bool following = question.step == ListStep::Following && store::IsVersion(question.version);
    if (!first && !following) throw BadRequest("it neither begins a list nor goes on with one");
    return question;
}

std::string ReadNewSet(const Request& request) {
    return ReadRecord(request);
}

store::StoredSet ReadNumberedSet(const Request& request) {
    std::string record = ReadRecord(request);
    const std::string_view header = Read(request.payload, set_request::kHeader);
    return {ReadSetNumber(Read(header, condition_header::kNumber)), std::move(record)};
}

int ReadDeletedNumber(const Request& request) {
    const std::string_view payload = request.payload;
    if (payload.size() != set_request::kDeleteSize) throw BadRequest("the request is not 2256 bytes long");
    const std::string_view header = Read(payload, set_request::kHeader);
    CheckUser(Read(header, condition_header::kUserId), request);
    const int count =
        PayloadReader(Read(header, condition_header::kCount)).TakeNumber(condition_header::kCount.width);
    PayloadReader blocks(payload.substr(set_request::kBlocks));
    blocks.TakeList(count, kConditionBlockSize);
    const std::size_t used = static_cast<std::size_t>(count) * kConditionBlockSize;
    if (payload.find_first_not_of(' ', set_request::kBlocks + used) != std::string_view::npos)
        throw BadRequest("it has more conditions than it counts");
    return ReadSetNumber(Read(header, condition_header::kNumber));
}

std::vector<int> ReadOrder(const Request& request) {
    CheckUser(Read(request.payload, reorder_request::kUserId), request);
    PayloadReader reader(request.payload);
    reader.Take(reorder_request::kCount.offset);
    const int count = reader.TakeNumber(reorder_request::kCount.width);
    PayloadReader numbers(reader.TakeList(count, reorder_request::kNumberWidth));
    reader.End();
    std::vector<int> order;
    for (int i = 0; i < count; ++i)
        order.push_back(ReadSetNumber(numbers.Take(reorder_request::kNumberWidth)));
    return order;
}

}  // namespace jogeon::service
