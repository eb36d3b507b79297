#include "screen/host/window_messages_qt.h"

#include <QWidget>
#include <memory>

#include <gtest/gtest.h>

namespace jogeon::host {
namespace {

// Other modules know the messages by these numbers.
static_assert(kResultDoubleClicked == 0x203 && kInitialUpdate == 0x364);
static_assert(kPanelAdd == 0x464 && kPanelReplace == 0x465 && kExpressionChanged == 0x4ab);
static_assert(kOpenScreenLinked == 0x496 && kTagChanged == 0x4ea && kOpenScreen == 0x4eb);
static_assert(kScreenSize == 0x4ce && kHostChanged == 0x5c2 && kHostQuery == 0x6bf);
static_assert(kLeftPaneWidth == 0x5df && kLeftPaneShown == 0x6df);
static_assert(kServerReply == 0x658 && kIgnored == 0x6c6);
static_assert(kSettingsFill == 0x720 && kSettingsTaken == 0x3021);

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
