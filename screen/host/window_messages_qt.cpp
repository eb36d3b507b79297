#include "screen/host/window_messages_qt.h"

#include <QCoreApplication>
#include <QWidget>
#include <map>

namespace jogeon::host {
namespace {

struct Window {
    QWidget* widget;
    WindowKind kind;
};

class Registry {
public:
    WindowHandle Add(QWidget& widget, WindowKind kind) {
        if (const WindowHandle known = Handle(&widget)) {
            if (kind == WindowKind::HostFrame) windows_[known].kind = kind;
            return known;
        }
        const WindowHandle handle = next_++;
        windows_[handle] = {&widget, kind};
        QObject::connect(&widget, &QObject::destroyed, &widget,
                         [handle] { Instance().windows_.erase(handle); });
        return handle;
    }

    const Window* Find(WindowHandle handle) const {
        const auto found = windows_.find(handle);
        return found == windows_.end() ? nullptr : &found->second;
    }

    WindowHandle Handle(const QWidget* widget) const {
        for (const auto& [handle, window] : windows_) {
            if (window.widget == widget) return handle;
        }
        return 0;
    }

    static Registry& Instance() {
        static Registry registry;
        return registry;
    }

private:
    std::map<WindowHandle, Window> windows_;
    WindowHandle next_ = 0x10001;
};

}  // namespace

MessageEvent::MessageEvent(MessageNumber messageNumber, std::uintptr_t w, std::intptr_t l)
    : QEvent(EventType()), number(messageNumber), wParam(w), lParam(l) {}

QEvent::Type MessageEvent::EventType() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

MessageEvent* AsMessage(QEvent* event) {
    return event->type() == MessageEvent::EventType() ? static_cast<MessageEvent*>(event) : nullptr;
}

WindowHandle RegisterWindow(QWidget& widget, WindowKind kind) {
    return Registry::Instance().Add(widget, kind);
}

QWidget* FindWindow(WindowHandle handle) {
    const Window* window = Registry::Instance().Find(handle);
    return window ? window->widget : nullptr;
}

WindowHandle HandleOf(const QWidget* widget) {
    return Registry::Instance().Handle(widget);
}

WindowHandle NearestHostFrame(const QWidget& widget) {
    for (const QWidget* at = widget.parentWidget(); at; at = at->parentWidget()) {
        const WindowHandle handle = HandleOf(at);
        const Window* window = Registry::Instance().Find(handle);
        if (window && window->kind == WindowKind::HostFrame) return handle;
    }
    return 0;
}

WindowHandle ParentWindow(const QWidget& widget) {
    for (const QWidget* at = widget.parentWidget(); at; at = at->parentWidget()) {
        if (const WindowHandle handle = HandleOf(at)) return handle;
    }
    return 0;
}

std::intptr_t SendMessage(WindowHandle window, MessageNumber number, std::uintptr_t wParam,
                          std::intptr_t lParam) {
    QWidget* widget = FindWindow(window);
    if (!widget) return 0;
    MessageEvent event(number, wParam, lParam);
    QCoreApplication::sendEvent(widget, &event);
    return event.result;
}

void PostMessage(WindowHandle window, MessageNumber number, std::uintptr_t wParam, std::intptr_t lParam) {
    if (QWidget* widget = FindWindow(window)) {
        QCoreApplication::postEvent(widget, new MessageEvent(number, wParam, lParam));
    }
}

}  // namespace jogeon::host
