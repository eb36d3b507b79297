// What the screen tells the host's main window: which screen to open, which shared tag has changed.
//
// Messages go out at once, so that a receiver reads the tags as they were set before. While there is no main
// window, nothing goes out.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "screen/host/messages.h"
#include "screen/host/services.h"

namespace jogeon {

class HostMainWindow {
public:
    using Send = std::function<std::intptr_t(host::WindowHandle window, host::MessageNumber number,
                                             std::uintptr_t wParam, std::intptr_t lParam)>;

    explicit HostMainWindow(Send send) : send_(std::move(send)) {}

    void Attach(host::WindowHandle window) { window_ = window; }  // 0 for none
    host::WindowHandle Handle() const { return window_; }

    void OpenScreen(const std::string& number) const;

    // Opens a screen and hands it the stock that the tag names.
    void OpenLinkedScreen(const std::string& number, const std::string& mainKey,
                          const std::string& tag) const;

    void TellTagChanged(const std::string& mainKey, const std::string& tag) const;

    // A row of this grid was double-clicked.
    void TellRowChosen(host::WindowHandle grid) const;

private:
    void Tell(host::MessageNumber number, std::uintptr_t wParam, std::intptr_t lParam) const;

    Send send_;
    host::WindowHandle window_ = 0;
};

}  // namespace jogeon
