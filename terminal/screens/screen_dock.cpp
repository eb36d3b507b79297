#include "terminal/screens/screen_dock.h"

#include <QCloseEvent>

namespace jogeon::terminal {
namespace {

constexpr QSize kUsualSize(480, 400);  // of a screen that wants nothing

}  // namespace

ScreenDock::ScreenDock(const QString& number, const QString& name, QWidget* window)
    : QDockWidget(window), number_(number), name_(name) {
    setObjectName("screen" + number);
    ShowTitle();
}

void ScreenDock::Take(OwnScreen& screen) {
    screen_ = &screen;
    setWidget(screen_);
    connect(screen_, &OwnScreen::TitleChanged, this, &ScreenDock::ShowTitle);
    ShowTitle();
}

void ScreenDock::Drop() {
    if (!visibleRegion().isEmpty()) lastSize_ = size();
    hide();
    delete screen_;
    screen_ = nullptr;
    ShowTitle();
}

QSize ScreenDock::WantedSize() const {
    if (lastSize_.isValid()) return lastSize_;
    const QSize wanted = screen_ ? screen_->sizeHint() : QSize();
    return wanted.isValid() ? wanted : kUsualSize;
}

// When the whole window has gone before, the screen counts as open, for the next session.
void ScreenDock::closeEvent(QCloseEvent* event) {
    event->accept();
    if (screen_ && parentWidget()->isVisible()) emit CloseAsked();
}

void ScreenDock::ShowTitle() {
    setWindowTitle(QStringLiteral("[%1] %2").arg(number_, screen_ ? screen_->Title() : name_));
    emit Renamed();
}

}  // namespace jogeon::terminal
