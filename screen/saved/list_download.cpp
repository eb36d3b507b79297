#include "screen/saved/list_download.h"

#include "screen/text/cp949.h"
#include "screen/transactions/condition_header.h"
#include "screen/transactions/stored_condition.h"

namespace jogeon {
namespace {

// A user has 99 sets at most, since a number has two digits and 99 stands for none. A chain that brings more
// sets, or more packets than sets, would never end.
constexpr int kMostRecords = 100;
constexpr int kMostPackets = 100;

constexpr char kFirstNumber[] = "00";

}  // namespace

void ListDownload::Start() {
    Forget();
    RequestList(ListStep::First, kFirstNumber, kFirstListKey);
}

void ListDownload::RequestList(ListStep step, const std::string& number, std::uint8_t key) {
    awaited_ = key;
    sent_.insert(key);
    const std::string& version = catalogueBuffer_ ? version_ : mirror_.Version();
    channel_.Send(ComposeListRequest(step, mirror_.UserId(), number, version), key);
}

void ListDownload::OnReply(std::string_view data, std::uint8_t key) {
    const ListReply reply = ReadListReply(data);
    switch (reply.answer) {
        case ListAnswer::Equal:
            loaded_(Outcome::Unchanged);
            break;
        case ListAnswer::VersionOnly:
            mirror_.SetVersion(reply.version);
            loaded_(Outcome::Unchanged);
            break;
        case ListAnswer::Data:
            if (IsAwaited(key)) TakePacket(reply);
            break;
        default:
            break;
    }
}

// A key of none of our requests says nothing: not every host hands it back.
bool ListDownload::IsAwaited(std::uint8_t key) const {
    return awaited_ && (key == *awaited_ || !sent_.contains(key));
}

// Server and file could disagree for good if the sets changed between two packets. With the version of the
// first one the file is behind then, and is brought up to date by the next version check.
void ListDownload::TakePacket(const ListReply& reply) {
    if (!catalogueBuffer_) {
        catalogueBuffer_.emplace(kPayloadBlockHint);
        version_ = reply.version;
    }
    if (!Gather(reply)) {
        GiveUp();
    } else if (reply.more) {
        AskForMore(reply.number);
    } else {
        Finish();
    }
}

// Adds the packet's records to the buffer. False if one of them is damaged, if there are more or fewer than
// the packet says, or if there is no end to them. A few bytes behind the last record do no harm.
bool ListDownload::Gather(const ListReply& reply) {
    const bool possible = reply.count >= 0 && reply.count <= kMostRecords - catalogueBlocks_;
    if (!possible || ++packets_ > kMostPackets) return false;
    std::string_view rest = reply.records;
    for (int i = 0; i < reply.count; ++i) {
        const auto length = StoredConditionLength(rest);
        if (!length) return false;
        catalogueBuffer_->PutBytes(rest.data(), *length);
        rest.remove_prefix(*length);
    }
    catalogueBlocks_ += reply.count;
    return rest.size() < kConditionHeaderSize;
}

void ListDownload::AskForMore(const std::string& number) {
    RequestList(ListStep::Following, RightIn(number, list_request::kNumber.width),
                FollowingListKey(catalogueBlocks_));
}

void ListDownload::Finish() {
    const std::string records = catalogueBuffer_->Detach();
    const int count = catalogueBlocks_;
    Forget();
    const bool written = RewriteFromServer(records, count, *catalogue_, version_, mirror_);
    loaded_(written ? Outcome::Rebuilt : Outcome::Unchanged);
    if (written) return;
    questions_.Ask(
        {"서버에서 받은 저장조건을 이 컴퓨터에 쓸 수 없습니다.\n\n디스크의 남은 공간과 쓰기 권한을 "
         "확인한 뒤 화면을 다시 열어 주시기 바랍니다."_cp949,
         "조건검색"_cp949});
}

void ListDownload::GiveUp() {
    Forget();
    loaded_(Outcome::Unchanged);
    questions_.Ask(
        {"서버에서 받은 저장조건이 올바르지 않아 불러올 수 없습니다.\n\n이 컴퓨터에 저장된 조건을 그대로 "
         "보여 드립니다."_cp949,
         "조건검색"_cp949});
}

void ListDownload::Forget() {
    catalogueBuffer_.reset();
    catalogueBlocks_ = 0;
    packets_ = 0;
    awaited_.reset();
}

bool RewriteFromServer(std::string_view data, int count, const Catalogue& catalogue, std::string_view version,
                       SavedMirror& mirror) {
    SavedSets sets;
    for (int i = 0; i < count && !data.empty(); ++i) {
        std::size_t length = 0;
        if (auto set = DecodeStoredCondition(data, catalogue, length)) sets.push_back(std::move(set));
        data.remove_prefix(length);
    }
    return mirror.Rewrite(sets, version);
}

}  // namespace jogeon
