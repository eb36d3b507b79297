// Windows by 32-bit handle, and the private messages that reach them through Qt's event system.
//
// A window is registered while it lives; a handle is never used twice in one process. Sending to a handle
// that names no living window does nothing and gives 0.
#pragma once

#include <QEvent>

#include "screen/host/export.h"
#include "screen/host/messages.h"
#include "screen/host/services.h"

class QWidget;

namespace jogeon::host {

// One private message. A receiver handles it in event() and may set `result`.
class JOGEON_HOST_API MessageEvent : public QEvent {
public:
    MessageEvent(MessageNumber messageNumber, std::uintptr_t w, std::intptr_t l);
    static QEvent::Type EventType();

    const MessageNumber number;
    const std::uintptr_t wParam;
    const std::intptr_t lParam;
    std::intptr_t result = 0;
};

// `event` as a private message, null if it is another event.
JOGEON_HOST_API MessageEvent* AsMessage(QEvent* event);

enum class WindowKind { Ordinary, HostFrame };  // a host frame is a frame window of the host

// Gives the widget a handle for as long as it lives; a second call gives the same handle.
JOGEON_HOST_API WindowHandle RegisterWindow(QWidget& widget, WindowKind kind = WindowKind::Ordinary);
JOGEON_HOST_API QWidget* FindWindow(WindowHandle handle);      // null if it doesn't live
JOGEON_HOST_API WindowHandle HandleOf(const QWidget* widget);  // 0 if it isn't registered

// The first ancestor of `widget` that is a host frame, as a handle; 0 if there is none.
JOGEON_HOST_API WindowHandle NearestHostFrame(const QWidget& widget);

// The first ancestor of `widget` that is registered at all, as a handle: the window its messages go up to.
JOGEON_HOST_API WindowHandle ParentWindow(const QWidget& widget);  // 0 if there is none

// Delivers a message at once and gives its result.
JOGEON_HOST_API std::intptr_t SendMessage(WindowHandle window, MessageNumber number, std::uintptr_t wParam,
                                          std::intptr_t lParam);

// Delivers a message when the event loop comes to it, if the window lives then; its result is nobody's.
JOGEON_HOST_API void PostMessage(WindowHandle window, MessageNumber number, std::uintptr_t wParam,
                                 std::intptr_t lParam);

}  // namespace jogeon::host
