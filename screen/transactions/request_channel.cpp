#include "screen/transactions/request_channel.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include "screen/text/cp949.h"
#include "screen/transactions/reply_record.h"
#include "screen/transactions/request_record.h"

namespace jogeon {
namespace {

using std::chrono::milliseconds;

// How each request is sent, by the first byte of its payload.
struct RequestKind {
    char letter;
    bool setsBusy;
    RequestChannel::Guard guard;
    std::string_view transaction;
    milliseconds limit;
};

constexpr std::string_view kSearch = "pisoscop";
constexpr std::string_view kStore = "pisodbop";

constexpr RequestKind kRequestKinds[] = {
    {'T', true, RequestChannel::Guard::Command, kSearch, milliseconds(15000)},
    {'N', true, RequestChannel::Guard::Command, kSearch, milliseconds(15000)},
    {'Z', false, RequestChannel::Guard::None, kSearch, milliseconds(0)},
    {'V', false, RequestChannel::Guard::ListDownload, kStore, milliseconds(20000)},
    {'A', true, RequestChannel::Guard::Command, kStore, milliseconds(15000)},
    {'E', true, RequestChannel::Guard::Command, kStore, milliseconds(15000)},
    {'D', true, RequestChannel::Guard::Command, kStore, milliseconds(15000)},
    {'C', false, RequestChannel::Guard::Command, kStore, milliseconds(15000)},
};

const RequestKind* FindKind(std::string_view payload) {
    const auto kind = std::find_if(std::begin(kRequestKinds), std::end(kRequestKinds), [&](const auto& k) {
        return !payload.empty() && k.letter == payload.front();
    });
    return kind == std::end(kRequestKinds) ? nullptr : kind;
}

std::string TimeoutText(int id) {
    if (id == static_cast<int>(RequestChannel::Guard::ListDownload)) {
        return "서버에서 저장조건을 불러올 수 없습니다. \n\n"
               "매일 00:00 ~ 00:30, 05:50 ~ 06:10, 07:20 ~ 07:40 은 정기점검 시간이므로 사용하실 수 "
               "없습니다.\n\n"
               "잠시후 화면을 다시 열어주시기 바랍니다."_cp949;
    }
    return "서버의 응답이 없어서 요청하신 작업을 완료할 수 없습니다.\n\n"
           "매일 00:00 ~ 00:30, 05:50 ~ 06:10, 07:20 ~ 07:40 은 정기점검 시간이므로 사용하실 수 없습니다."_cp949;
}

}  // namespace

RequestChannel::RequestChannel(host::Communication& communication, host::Clock& clock,
                               host::Questions& questions, std::function<void()> refreshCursor)
    : communication_(communication),
      clock_(clock),
      questions_(questions),
      refreshCursor_(std::move(refreshCursor)) {}

RequestChannel::~RequestChannel() {
    clock_.Forget(*this);
}

void RequestChannel::Attach(host::WindowHandle window, std::uint8_t majorId) {
    window_ = window;
    majorId_ = majorId;
}

bool RequestChannel::Send(std::string_view payload, std::uint8_t key, milliseconds limit) {
    const RequestKind* kind = FindKind(payload);
    if (!kind) return false;
    if (kind->setsBusy) busy_ = true;
    if (kind->guard != Guard::None) StartGuard(kind->guard, limit.count() > 0 ? limit : kind->limit);
    if (kind->setsBusy) refreshCursor_();
    SendRequest(kind->transaction, payload, key);
    return true;
}

int RequestChannel::SendRequest(std::string_view transaction, std::string_view payload, std::uint8_t key) {
    communication_.CommRequestData(
        window_, {BuildRequestRecord(majorId_, key, transaction, window_, payload)}, 0, 0, -1, 1);
    return 1;
}

void RequestChannel::SendClosing() {
    communication_.CommRequestData(window_, {BuildClosingRecord(majorId_)}, 0, 0, -1, 0);
}

void RequestChannel::SetHandler(char letter, Handler handler) {
    handlers_.at(static_cast<std::size_t>(letter - 'A')) = std::move(handler);
}

void RequestChannel::OnReply(std::uintptr_t wParam, std::string_view replyBlock) {
    communication_.CommRemoveBrod(window_);
    if (replyBlock.empty() || wParam == 0) return;
    replyKey_ = static_cast<std::uint8_t>(wParam);
    // A copy, because a handler may run a modal box, and the block is the host's.
    const std::string data(ReplyData(replyBlock).value_or(std::string_view()));
    Receive(data);
}

void RequestChannel::OnTimer(int id) {
    if (id == 0 || id != requestTimerId_) return;
    clock_.KillTimer(*this, id);
    requestTimerId_ = 0;
    busy_ = false;
    refreshCursor_();
    if (expired_) expired_(static_cast<Guard>(id));
    questions_.Ask({TimeoutText(id), "조건검색"_cp949, host::Icon::Information, host::Buttons::Ok});
}

void RequestChannel::StartGuard(Guard guard, milliseconds limit) {
    requestTimerId_ = static_cast<int>(guard);
    clock_.SetTimer(*this, requestTimerId_, limit);
}

void RequestChannel::EndWait() {
    busy_ = false;
    refreshCursor_();
    if (requestTimerId_ == 0) return;
    clock_.KillTimer(*this, requestTimerId_);
    requestTimerId_ = 0;
}

void RequestChannel::Receive(std::string_view data) {
    EndWait();
    if (data.empty() || data.front() < 'A' || data.front() > 'V') return;
    const Handler& handler = handlers_[static_cast<std::size_t>(data.front() - 'A')];
    if (handler) handler(data);
}

}  // namespace jogeon
