#include "screen/host/window_messages_qt.h"

#include <QWidget>
#include <memory>

#include <gtest/gtest.h>

namespace jogeon::host {
namespace {

class Answering : public QWidget {
public:
    using QWidget::QWidget;

protected:
    bool event(QEvent* event) override {
        MessageEvent* message = AsMessage(event);
        if (!message) return QWidget::event(event);
        message->result = static_cast<std::intptr_t>(message->wParam) + message->lParam;
        return true;
    }
};

TEST(WindowMessagesTest, AHandleNamesItsWindowOnlyWhileItLives) {
    auto window = std::make_unique<Answering>();
    EXPECT_EQ(0u, HandleOf(window.get()));
    const WindowHandle handle = RegisterWindow(*window);
    EXPECT_EQ(handle, RegisterWindow(*window));
    EXPECT_EQ(window.get(), FindWindow(handle));
    EXPECT_EQ(7, SendMessage(handle, kIgnored, 3, 4));

    window.reset();
    EXPECT_EQ(nullptr, FindWindow(handle));
    EXPECT_EQ(0, SendMessage(handle, kIgnored, 3, 4));
    Answering other;
    EXPECT_NE(handle, RegisterWindow(other));
    EXPECT_EQ(0, SendMessage(0, kIgnored, 1, 1));
}

TEST(WindowMessagesTest, OnlyRegisteredHostFramesAreFoundOnTheWayUp) {
    QWidget top;
    QWidget frame(&top);
    QWidget middle(&frame);
    QWidget leaf(&middle);
    RegisterWindow(middle);
    EXPECT_EQ(0u, NearestHostFrame(leaf));
    const WindowHandle handle = RegisterWindow(frame, WindowKind::HostFrame);
    EXPECT_EQ(handle, NearestHostFrame(leaf));
    EXPECT_EQ(0u, NearestHostFrame(frame));
}

}  // namespace
}  // namespace jogeon::host
