#include "server/service/store_service.h"

#include <algorithm>
#include <utility>

#include "screen/transactions/list_request.h"
#include "server/engine/universe.h"
#include "server/service/store_replies.h"
#include "server/service/store_requests.h"

namespace jogeon::service {
namespace {

using store::Outcome;

constexpr char kList = 'V';
constexpr char kSaveNew = 'A';
constexpr char kSave = 'E';
constexpr char kDelete = 'D';
constexpr char kReorder = 'C';
constexpr std::string_view kCommands = "AEDC";

// Records of one packet, in bytes.
constexpr std::size_t kPacketBytes = 32 * 1024;

std::string Why(const store::Change& change, const std::string& asked) {
    switch (change.outcome) {
        case Outcome::WrongVersion:
            return "its version is " + engine::Quoted(asked) + ", the user's sets have " + change.version;
        case Outcome::NoFreeNumber:
            return "the user has 99 sets";
        case Outcome::NoSuchSet:
            return "there is no such set";
        case Outcome::NotEverySet:
            return "the new order doesn't name every set once";
        case Outcome::Done:
            break;
    }
    return {};
}

}  // namespace

StoreService::StoreService(const std::filesystem::path& file, FailureLog log)
    : file_(file), store_(file), log_(std::move(log)) {}

std::string StoreService::Handle(const Request& request) {
    if (request.transaction != kStoreTransaction || request.payload.empty()) return {};
    const char letter = request.payload.front();
    if (letter == kList) return AnswerList(request);
    return kCommands.find(letter) == std::string_view::npos ? std::string() : AnswerCommand(request);
}

// A list longer than a packet goes out as a chain, and the sets may change before its last packet. Every
// packet therefore tells the version that the chain began with, which each further request brings along: a
// list put together from two states has the version of the older one, and is fetched again.
std::string StoreService::AnswerList(const Request& request) {
    try {
        const ListQuestion asked = ReadListQuestion(request);
        const store::Listing listing = store_.List(request.user, asked.from, kPacketBytes);
        if (asked.step == ListStep::First && asked.version == listing.version) return BuildListEqual();
        const std::string& told = asked.step == ListStep::First ? listing.version : asked.version;
        return BuildListPacket(listing, told, request.user);
    } catch (const std::runtime_error& error) {  // a bad request, or a store that can't be used
        Log(request, error.what());
        return {};
    }
}

std::string StoreService::AnswerCommand(const Request& request) {
    const char letter = request.payload.front();
    const std::string asked(Read(request.payload, set_request::kVersion));
    try {
        const store::Change change = Carry(request, asked);
        if (change.outcome == Outcome::Done) return BuildDone(letter, change);
        Log(request, Why(change, asked));
        return BuildFailed(letter, change.version);
    } catch (const std::runtime_error& error) {
        Log(request, error.what());
    }
    return BuildFailed(letter, VersionFor(request, asked));
}

// The version that a refused command is told. Without one to tell it is the asker's own: another would have
// him fetch a list that can't be had.
std::string StoreService::VersionFor(const Request& request, const std::string& asked) {
    try {
        return store_.Version(request.user);
    } catch (const store::StoreError&) {
        return asked;
    }
}

store::Change StoreService::Carry(const Request& request, const std::string& version) {
    switch (request.payload.front()) {
        case kSaveNew:
            return store_.Add(request.user, version, ReadNewSet(request));
        case kSave:
            return store_.Put(request.user, version, ReadNumberedSet(request));
        case kDelete:
            return store_.Remove(request.user, version, ReadDeletedNumber(request));
        case kReorder:
        default:
            return store_.Reorder(request.user, version, ReadOrder(request));
    }
}

void StoreService::Log(const Request& request, std::string_view why) const {
    if (!log_) return;
    log_(request.transaction + " " + request.payload.front() + " of " + engine::Quoted(request.user) + ": " +
         std::string(why));
}

}  // namespace jogeon::service
