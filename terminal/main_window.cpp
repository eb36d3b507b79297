#include "terminal/main_window.h"

#include <QCloseEvent>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <map>

#include "terminal/window/size_rules.h"

namespace jogeon::terminal {
namespace {

constexpr auto kBeside = Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea;

}  // namespace

MainWindow::MainWindow(const QString& user, const QString& server, const service::MarketSummary& market)
    : foot_(*new StatusLine(user, server, this)) {
    setWindowTitle(tr("jogeon - [0150] 조건검색"));
    setDockOptions(AllowNestedDocks | AllowTabbedDocks);
    setContextMenuPolicy(Qt::NoContextMenu);  // its own would show docks that have no screen
    setCentralWidget(&bed_);
    setStatusBar(&foot_);
    bed_.Lay(frame_);
    foot_.ShowMarket(market);
    connect(&frame_, &HostFrame::SizeAsked, this, &MainWindow::GrantSize);
    menuBar();
    ResetSize();
}

QRect MainWindow::Desktop() const {
    const QMargins edges(geometry().left() - frameGeometry().left(), geometry().top() - frameGeometry().top(),
                         frameGeometry().right() - geometry().right(),
                         frameGeometry().bottom() - geometry().bottom());
    return screen()->availableGeometry().marginsRemoved(edges);
}

void MainWindow::GiveRoom(QDockWidget& dock, const QSize& wanted, const QRect& before) {
    const bool beside = kBeside & dockWidgetArea(&dock);
    const QSize both = frame_.minimumSize() + Chrome() + RoomOf(dock, dock.minimumSizeHint());
    if (beside ? both.width() > Desktop().width() : both.height() > Desktop().height()) {
        dock.setFloating(true);
        dock.setGeometry(PlacedWhole(dock.pos(), wanted, Desktop()));
        MindDocks();
        if (Resizable()) setGeometry(before);
        return;
    }
    MindDocks();
    if (Resizable()) setGeometry(Grown(before, RoomOf(dock, wanted), Desktop()));
    layout()->activate();
    resizeDocks({&dock}, {beside ? wanted.width() : wanted.height()}, beside ? Qt::Horizontal : Qt::Vertical);
}

void MainWindow::TakeRoomBack(QDockWidget& dock, const QSize& had) {
    MindDocks();
    if (Resizable()) resize(size() - RoomOf(dock, had));
}

void MainWindow::MindDocks() {
    const Docked docked = DockedOnes();
    const QSize room = Desktop().size() - Chrome() - docked.least;
    const int bar = room.height() < frame_.minimumHeight() ? bed_.verticalScrollBar()->sizeHint().width() : 0;
    const QSize least = (frame_.minimumSize() + QSize(bar, 0)).boundedTo(room);
    bed_.setMinimumSize(least);
    bed_.setMaximumSize(
        docked.beside ? std::max(least.width(), frame_.Wanted().width() + bar) : QWIDGETSIZE_MAX,
        docked.aboveOrBelow ? std::max(least.height(), frame_.Wanted().height()) : QWIDGETSIZE_MAX);
    bed_.Fit();
    layout()->activate();  // the window's own least size is another now
}

void MainWindow::ResetSize() {
    if (!Resizable()) return;
    ensurePolished();
    MindDocks();
    resize((frame_.Wanted() + Chrome()).boundedTo(Desktop().size()));
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::ThemeChange) emit DesktopColorsChanged();
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) emit Moved();
    return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    emit Closing();
    QMainWindow::closeEvent(event);
}

// The window follows its screen: it fits it closely, or keeps its docks as they are.
void MainWindow::GrantSize(QSize frameSize) {
    ensurePolished();
    layout()->activate();
    const QRect before = geometry();
    const QSize close = frameSize + Chrome();
    const Docked docked = DockedOnes();
    const QSize wanted(
        docked.beside ? width() + frameSize.width() - bed_.width() : close.width(),
        docked.beside || docked.aboveOrBelow ? std::max(height(), close.height()) : close.height());
    MindDocks();
    if (Resizable()) setGeometry(Grown(before, wanted - before.size(), Desktop()));
    layout()->activate();
    bed_.Fit();
}

// Docks of one area lie one behind the other, or share the length of its side.
MainWindow::Docked MainWindow::DockedOnes() const {
    Docked docked;
    std::map<Qt::DockWidgetArea, QSize> least;  // each begins with no size, which any size exceeds
    for (QDockWidget* dock : findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (dock->isHidden() || dock->isFloating()) continue;
        const Qt::DockWidgetArea area = dockWidgetArea(dock);
        (kBeside & area ? docked.beside : docked.aboveOrBelow) = true;
        least[area] = least[area].expandedTo(RoomOf(*dock, dock->minimumSizeHint()));
    }
    for (const auto& [area, size] : least) docked.least += size;
    return docked;
}

// What menu and foot take.
QSize MainWindow::Chrome() const {
    return {0, menuWidget()->sizeHint().height() + foot_.sizeHint().height()};
}

// What a dock of this size takes of the window.
QSize MainWindow::RoomOf(QDockWidget& dock, const QSize& size) const {
    const int bar = style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, this);
    const bool beside = kBeside & dockWidgetArea(&dock);
    return beside ? QSize(size.width() + bar, 0) : QSize(0, size.height() + bar);
}

}  // namespace jogeon::terminal
