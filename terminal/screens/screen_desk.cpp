#include "terminal/screens/screen_desk.h"

#include <QApplication>
#include <QCoreApplication>
#include <algorithm>

#include "terminal/kept_bytes.h"
#include "terminal/screens/stock_link.h"

namespace jogeon::terminal {
namespace {

constexpr char kScreen0150[] = "0150";
constexpr char kOpenScreens[] = "screens/open";
constexpr char kPlaces[] = "screens/places";
constexpr int kPlacesForm = 1;

QString NameOf(const ScreenKind& kind) {
    return QCoreApplication::translate("jogeon::terminal::ScreenKind", kind.name);
}

QString Name0150() {
    return ScreenDesk::tr("조건검색");
}

// Writes what the dock's screen keeps.
void SaveScreen(const ScreenDock& dock, QSettings& file) {
    file.beginGroup(dock.objectName());
    dock.Screen()->SaveState(file);
    file.endGroup();
}

// The widget in `screen` that the keyboard goes to.
QWidget* FocusStop(QWidget& screen) {
    if (QWidget* last = screen.focusWidget()) return last;
    if (screen.focusPolicy() != Qt::NoFocus || screen.focusProxy()) return &screen;
    for (QWidget* at = screen.nextInFocusChain(); at != &screen; at = at->nextInFocusChain()) {
        if (screen.isAncestorOf(at) && at->isVisible() && (at->focusPolicy() & Qt::TabFocus)) return at;
    }
    return &screen;
}

}  // namespace

ScreenDesk::ScreenDesk(MainWindow& window, const Workplace& workplace, UserState& state,
                       std::vector<ScreenKind> kinds)
    : window_(window), workplace_(workplace), state_(state), kinds_(std::move(kinds)) {
    for (const ScreenKind& kind : kinds_) AddDock(kind);
    const HostFrame& frame = window_.Frame();
    connect(&frame, &HostFrame::ScreenAsked, this, &ScreenDesk::Open);
    connect(&frame, &HostFrame::ResultChosen, this, [this] { Open(kChartScreen, true); });
    connect(&frame, &HostFrame::TagChanged, this,
            [this](const std::string& mainKey, const std::string& tag) { PassOn(nullptr, mainKey, tag); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { NoteFocus(now); });
}

ScreenDesk::~ScreenDesk() {
    for (ScreenDock* dock : docks_) {
        dock->disconnect(this);
        if (dock->Screen()) dock->Drop();
    }
}

void ScreenDesk::Open(const QString& number, bool linked) {
    if (number == kScreen0150) {
        window_.raise();
        return;
    }
    ScreenDock* dock = Find(number);
    if (!dock) {
        emit Remark(tr("화면 [%1]은 이 터미널에 없습니다.").arg(number));
        return;
    }
    if (!dock->Screen()) OpenInRoom(*dock);
    dock->raise();
    dock->Screen()->OnOpened(linked);
    NoteChange();
}

void ScreenDesk::GoTo(const QString& number) {
    Open(number, false);
    const ScreenDock* dock = Find(number);
    QWidget* screen = dock ? static_cast<QWidget*>(dock->Screen()) : &window_.Frame();
    screen->activateWindow();
    QWidget* stop =
        !dock && lastIn0150_ && lastIn0150_->isVisible() ? lastIn0150_.data() : FocusStop(*screen);
    stop->setFocus(Qt::ShortcutFocusReason);
}

void ScreenDesk::Close(const QString& number) {
    ScreenDock* dock = Find(number);
    if (dock && dock->Screen()) Close(*dock);
}

void ScreenDesk::CloseAll() {
    for (ScreenDock* dock : OpenDocks()) Close(*dock);
}

void ScreenDesk::ResetPlaces() {
    for (ScreenDock* dock : docks_) {
        dock->setFloating(false);
        window_.addDockWidget(Qt::RightDockWidgetArea, dock);
        if (dock != docks_.first()) window_.tabifyDockWidget(docks_.first(), dock);
        dock->setVisible(dock->Screen() != nullptr);
    }
    window_.ResetSize();
    const QList<ScreenDock*> open = OpenDocks();
    if (!open.isEmpty()) window_.GiveRoom(*open.first(), open.first()->WantedSize(), window_.geometry());
    NoteChange();
}

QList<ScreenLine> ScreenDesk::Known() const {
    QList<ScreenLine> lines{{kScreen0150, Name0150()}};
    for (const ScreenDock* dock : docks_) lines.append({dock->Number(), dock->Name()});
    return lines;
}

QList<ScreenLine> ScreenDesk::OpenOnes() const {
    QList<ScreenLine> lines{{kScreen0150, "[0150] " + Name0150(), !active_}};
    for (const ScreenDock* dock : OpenDocks()) {
        lines.append({dock->Number(), dock->windowTitle(), dock == active_});
    }
    return lines;
}

void ScreenDesk::OnThemeChanged() {
    for (const ScreenDock* dock : OpenDocks()) dock->Screen()->OnThemeChanged();
}

void ScreenDesk::OnServiceRenewed() {
    for (const ScreenDock* dock : OpenDocks()) dock->Screen()->OnServiceRenewed();
}

void ScreenDesk::Save(QSettings& file) const {
    QStringList open;
    for (const ScreenDock* dock : OpenDocks()) {
        open.append(dock->Number());
        SaveScreen(*dock, file);
    }
    file.setValue(kOpenScreens, open);
    KeepBytes(file, kPlaces, window_.saveState(kPlacesForm));
}

void ScreenDesk::Restore() {
    const QSettings* file = state_.Kept();
    if (!file) return;
    const QStringList open = file->value(kOpenScreens).toStringList();
    for (ScreenDock* dock : docks_) {
        if (open.contains(dock->Number())) Fill(*dock);
    }
    const bool known = window_.restoreState(KeptBytes(*file, kPlaces), kPlacesForm);
    if (!known && !OpenDocks().isEmpty()) ResetPlaces();
    for (ScreenDock* dock : docks_) dock->setVisible(dock->Screen() != nullptr);
    window_.MindDocks();
    for (const ScreenDock* dock : OpenDocks()) dock->Screen()->OnOpened(false);
}

void ScreenDesk::AddDock(const ScreenKind& kind) {
    auto* dock = new ScreenDock(kind.number, NameOf(kind), &window_);
    window_.addDockWidget(Qt::RightDockWidgetArea, dock);
    if (!docks_.isEmpty()) window_.tabifyDockWidget(docks_.first(), dock);
    dock->hide();
    docks_.append(dock);
    connect(dock, &ScreenDock::CloseAsked, this, [this, dock] { Close(*dock); });
    connect(dock, &ScreenDock::Renamed, this, &ScreenDesk::NoteChange);
    // While a dock is dragged the window's layout is in use.
    for (const auto signal : {&QDockWidget::topLevelChanged, &QDockWidget::visibilityChanged}) {
        connect(dock, signal, this, &ScreenDesk::NoteChange, Qt::QueuedConnection);
    }
    connect(dock, &QDockWidget::dockLocationChanged, this, &ScreenDesk::NoteChange, Qt::QueuedConnection);
}

OwnScreen* ScreenDesk::Screen(const QString& number) const {
    const ScreenDock* dock = Find(number);
    return dock ? dock->Screen() : nullptr;
}

ScreenDock* ScreenDesk::Find(const QString& number) const {
    const auto found = std::find_if(docks_.begin(), docks_.end(),
                                    [&](const auto* dock) { return dock->Number() == number; });
    return found == docks_.end() ? nullptr : *found;
}

QList<ScreenDock*> ScreenDesk::OpenDocks() const {
    QList<ScreenDock*> open;
    for (ScreenDock* dock : docks_) {
        if (dock->Screen()) open.append(dock);
    }
    return open;
}

bool ScreenDesk::AloneInItsArea(ScreenDock& dock) const {
    const QList<ScreenDock*> open = OpenDocks();
    return std::none_of(open.begin(), open.end(), [&](ScreenDock* other) {
        return other != &dock && !other->isFloating() &&
               window_.dockWidgetArea(other) == window_.dockWidgetArea(&dock);
    });
}

// Makes the screen, with what it has kept, in its dock.
void ScreenDesk::Fill(ScreenDock& dock) {
    OwnScreen* screen = kinds_[static_cast<std::size_t>(docks_.indexOf(&dock))].make(workplace_, &dock);
    connect(screen, &OwnScreen::ScreenAsked, this, &ScreenDesk::Open);
    connect(
        screen, &OwnScreen::TagSet, this,
        [this, screen](const std::string& mainKey, const std::string& tag) { PassOn(screen, mainKey, tag); });
    if (QSettings* file = state_.Kept()) {
        file->beginGroup(dock.objectName());
        screen->RestoreState(*file);
        file->endGroup();
    }
    dock.Take(*screen);
}

void ScreenDesk::OpenInRoom(ScreenDock& dock) {
    const QRect before = window_.geometry();
    const bool needsRoom = AloneInItsArea(dock);
    Fill(dock);
    dock.show();
    if (needsRoom && !dock.isFloating()) window_.GiveRoom(dock, dock.WantedSize(), before);
}

void ScreenDesk::Close(ScreenDock& dock) {
    if (QSettings* file = state_.Kept()) SaveScreen(dock, *file);
    const QSize had = dock.size();
    const bool leavesRoom = !dock.isFloating() && AloneInItsArea(dock);
    if (active_ == &dock) active_ = nullptr;
    dock.Drop();
    if (leavesRoom) window_.TakeRoomBack(dock, had);
    NoteChange();
}

// A screen that answers by setting the same tag would have the others answer for ever.
void ScreenDesk::PassOn(const OwnScreen* from, const std::string& mainKey, const std::string& tag) {
    const auto [mark, fresh] = passing_.emplace(mainKey, tag);
    if (!fresh) return;
    for (const ScreenDock* dock : OpenDocks()) {
        if (dock->Screen() && dock->Screen() != from) dock->Screen()->OnTagChanged(mainKey, tag);
    }
    passing_.erase(mark);
}

// Menus and boxes are no place to come back to.
void ScreenDesk::NoteFocus(QWidget* now) {
    if (!now) return;
    if (window_.Frame().isAncestorOf(now)) {
        lastIn0150_ = now;
        active_ = nullptr;
    }
    for (const ScreenDock* dock : docks_) {
        if (dock->isAncestorOf(now)) active_ = dock;
    }
}

void ScreenDesk::NoteChange() {
    window_.MindDocks();
    state_.SaveSoon();
}

}  // namespace jogeon::terminal
