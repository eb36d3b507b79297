#include "screen/results/host_main_window.h"

namespace jogeon {
namespace {

constexpr std::uintptr_t kWithoutLink = 4;  // wParam of a plain opening
constexpr char kSeparator = '\x1f';

std::string NotifyText(const std::string& mainKey, const std::string& tag) {
    return '0' + (kSeparator + mainKey) + kSeparator + tag;
}

template <typename Parameter>
Parameter AddressOf(const std::string& text) {
    return reinterpret_cast<Parameter>(text.c_str());
}

}  // namespace

void HostMainWindow::OpenScreen(const std::string& number) const {
    Tell(host::kOpenScreen, kWithoutLink, AddressOf<std::intptr_t>(number));
}

void HostMainWindow::OpenLinkedScreen(const std::string& number, const std::string& mainKey,
                                      const std::string& tag) const {
    const std::string link = NotifyText(mainKey, tag);
    Tell(host::kOpenScreenLinked, AddressOf<std::uintptr_t>(link), AddressOf<std::intptr_t>(number));
}

void HostMainWindow::TellTagChanged(const std::string& mainKey, const std::string& tag) const {
    const std::string notify = NotifyText(mainKey, tag);
    Tell(host::kTagChanged, 0, AddressOf<std::intptr_t>(notify));
}

void HostMainWindow::TellRowChosen(host::WindowHandle grid) const {
    Tell(host::kResultDoubleClicked, grid, 0);
}

void HostMainWindow::Tell(host::MessageNumber number, std::uintptr_t wParam, std::intptr_t lParam) const {
    if (window_) send_(window_, number, wParam, lParam);
}

}  // namespace jogeon
