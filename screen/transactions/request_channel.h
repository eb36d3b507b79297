// The one request that may be under way, and the guard that ends its wait.
//
// Relies on the transport, the clock and the message boxes of the host. Sending marks the screen busy and
// starts a guard timer; any reply, or the guard's expiry, ends both. A late reply is still delivered: the
// guard only stops the waiting.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>

#include "screen/host/services.h"

namespace jogeon {

class RequestChannel final : public host::TimerSink {
public:
    enum class Guard : int { None = 0, Command = 257, ListDownload = 258 };  // the numbers are timer ids

    using Handler = std::function<void(std::string_view data)>;

    // `refreshCursor` is called whenever the wait cursor may have to come or go. The services outlive this.
    RequestChannel(host::Communication& communication, host::Clock& clock, host::Questions& questions,
                   std::function<void()> refreshCursor);
    ~RequestChannel();
    RequestChannel(const RequestChannel&) = delete;
    RequestChannel& operator=(const RequestChannel&) = delete;

    // Who asks: the screen's window, 0 if there is none, and the major id that travels in every request.
    void Attach(host::WindowHandle window, std::uint8_t majorId);

    host::WindowHandle Window() const { return window_; }
    std::uint8_t MajorId() const { return majorId_; }

    // A request that blocks further commands is out. Commands ask this before they compose; sending itself
    // refuses nothing.
    bool Busy() const { return busy_; }

    // Sends `payload` as its first byte demands: by the transaction and under the guard of its kind, which
    // takes the one timer slot whoever held it. `limit` is other than 0 where a command allows the server
    // more time than usual. False, with nothing sent, for a payload of no kind.
    bool Send(std::string_view payload, std::uint8_t key,
              std::chrono::milliseconds limit = std::chrono::milliseconds(0));

    // Hands one record to the transport, with no guard. Always 1.
    int SendRequest(std::string_view transaction, std::string_view payload, std::uint8_t key);

    // The last message of a screen that closes; nothing answers it.
    void SendClosing();

    // Who gets the replies whose data begins with `letter`, one of A C D E N T V.
    void SetHandler(char letter, Handler handler);

    // Who is told that a guard has run out, before the user is.
    void SetExpired(std::function<void(Guard)> expired) { expired_ = std::move(expired); }

    // A reply from the transport. `wParam` is the message's first parameter, whose low byte is the key of the
    // request that is answered; at 0 the message is swallowed and the guard runs on. `replyBlock` is empty
    // where the message carried none.
    void OnReply(std::uintptr_t wParam, std::string_view replyBlock);

    // The key of the request that was answered last; of use to a handler before it shows a box.
    std::uint8_t ReplyKey() const { return replyKey_; }

    // The guard's tick. A tick of a timer that has lost the slot is ignored.
    void OnTimer(int id) override;

private:
    void StartGuard(Guard guard, std::chrono::milliseconds limit);
    void EndWait();
    void Receive(std::string_view data);

    host::Communication& communication_;
    host::Clock& clock_;
    host::Questions& questions_;
    std::function<void()> refreshCursor_;
    host::WindowHandle window_ = 0;
    std::uint8_t majorId_ = 0;
    int requestTimerId_ = 0;
    bool busy_ = false;
    std::uint8_t replyKey_ = 0;
    std::function<void(Guard)> expired_;
    std::array<Handler, 'V' - 'A' + 1> handlers_;
};

}  // namespace jogeon
