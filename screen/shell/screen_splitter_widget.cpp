#include "screen/shell/screen_splitter_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSplitterHandle>
#include <algorithm>

#include "screen/files/data_paths.h"
#include "screen/host/window_messages_qt.h"
#include "screen/palette/colors_qt.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

// The bar: it tells the splitter when the mouse lets go of it and when it is double-clicked.
class SplitterBar : public QSplitterHandle {
public:
    SplitterBar(Qt::Orientation orientation, ScreenSplitter* parent)
        : QSplitterHandle(orientation, parent), splitter_(*parent) {}

protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        QSplitterHandle::mouseReleaseEvent(event);
        splitter_.ReportSize(false);
    }

    void mouseDoubleClickEvent(QMouseEvent*) override { splitter_.ResetLeftPane(); }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor edge = ToQColor(Color::ControlEdge);
        painter.fillRect(rect(), ToQColor(Color::ScreenBack));
        painter.fillRect(1, 0, 1, height(), edge);
        painter.fillRect(width() - 2, 0, 1, height(), edge);
    }

private:
    ScreenSplitter& splitter_;
};

// The low word carries the height, the high word the width.
std::intptr_t PackSize(int width, int height) {
    return (static_cast<std::intptr_t>(width) << 16) | height;
}

}  // namespace

ScreenSplitter::ScreenSplitter(QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), links_(*host::Installed().links) {
    setHandleWidth(kBarWidth);
    setChildrenCollapsible(false);
    host::RegisterWindow(*this);
    hostFrameWindow_ = host::NearestHostFrame(*this);
}

void ScreenSplitter::SetPanes(QWidget& left, QWidget& right) {
    addWidget(&left);
    addWidget(&right);
    left.setMinimumWidth(kLeftPaneMinimum);
    right.setMinimumWidth(kRightPaneMinimum);
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    leftPaneHidden_ = false;
    leftPaneWidth_ = kLeftPaneWidth;
    setSizes({kLeftPaneWidth, std::max(kRightPaneWidth, width() - kLeftPaneWidth - kBarWidth)});
}

void ScreenSplitter::ReportSize(bool force) {
    const int paneWidth = sizes().value(0);
    if (paneWidth != 0) leftPaneWidth_ = paneWidth;

    const QWidget* hostFrame = host::FindWindow(hostFrameWindow_);
    const QSize hostSize = hostFrame ? hostFrame->size() : QSize();
    const int target = paneWidth + kScreenWidth;
    if (hostSize == QSize(target, kScreenHeight) && !force) return;

    enum { kResize = 0, kMinimum = 1, kMaximum = 2 };
    host::SendMessage(hostFrameWindow_, host::kScreenSize, kMinimum, PackSize(target, kScreenHeight));
    host::SendMessage(hostFrameWindow_, host::kScreenSize, kMaximum,
                      PackSize(std::max(target, kWidestMinimum), kScreenHeight));
    host::SendMessage(hostFrameWindow_, host::kScreenSize, kResize, PackSize(target, kScreenHeight));
}

void ScreenSplitter::ResetLeftPane() {
    SetLeftWidth(kLeftPaneWidth);
    ReportSize(false);
}

bool ScreenSplitter::event(QEvent* event) {
    host::MessageEvent* message = host::AsMessage(event);
    if (!message) return QSplitter::event(event);
    switch (message->number) {
        case host::kLeftPaneWidth: {
            const std::string key = reinterpret_cast<const char*>(message->lParam);
            message->wParam ? SaveWidth(key) : RestoreWidth(key);
            return true;
        }
        case host::kLeftPaneShown:
            ShowLeftPane(message->wParam != 0);
            return true;
        case host::kHostChanged:
            hostFrameWindow_ = static_cast<host::WindowHandle>(message->lParam);
            return true;
        default:
            return true;
    }
}

QSplitterHandle* ScreenSplitter::createHandle() {
    return new SplitterBar(orientation(), this);
}

void ScreenSplitter::ShowLeftPane(bool shown) {
    leftPaneHidden_ = !shown;
    SetLeftWidth(shown ? leftPaneWidth_ : 0);
    ReportSize(true);
}

// A width below the minimum leaves the pane without room.
void ScreenSplitter::SetLeftWidth(int width) {
    widget(0)->setVisible(width >= kLeftPaneMinimum);
    const int room = this->width() - kBarWidth;
    setSizes({width, std::max(kRightPaneMinimum, room - width)});
}

void ScreenSplitter::SaveWidth(const std::string& key) const {
    SettingsFile(links_, GetUserId(links_)).WriteLeftPaneWidth(key, leftPaneWidth_);
}

void ScreenSplitter::RestoreWidth(const std::string& key) {
    leftPaneWidth_ = SettingsFile(links_, GetUserId(links_)).LeftPaneWidth(key);
    SetLeftWidth(leftPaneWidth_);
}

}  // namespace jogeon
