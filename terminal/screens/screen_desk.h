// The own screens of the terminal, each in a dock of the main window: opens and closes them, and passes on
// what one screen has for the others.
//
// Screens are asked for by number: by screen 0150 through its host frame, by each other, and by the menu.
#pragma once

#include <QList>
#include <QPointer>
#include <QSettings>
#include <set>
#include <utility>

#include "terminal/main_window.h"
#include "terminal/screens/screen_dock.h"
#include "terminal/screens/screen_kind.h"
#include "terminal/user_state.h"
#include "terminal/window/main_menu.h"

namespace jogeon::terminal {

class ScreenDesk : public QObject {
    Q_OBJECT

public:
    // What comes by reference outlives this object. All screens are closed at first.
    ScreenDesk(MainWindow& window, const Workplace& workplace, UserState& state,
               std::vector<ScreenKind> kinds);

    // Destroys what is open; it counts as open for the next session.
    ~ScreenDesk() override;

    // Opens the screen with this number, or brings it to the front; `linked` as OwnScreen has it. A number
    // that no screen has is remarked on.
    void Open(const QString& number, bool linked);

    // The same as the user's own wish: the keyboard goes there too.
    void GoTo(const QString& number);

    void Close(const QString& number);
    void CloseAll();

    // The screen with this number, null while it is closed.
    OwnScreen* Screen(const QString& number) const;

    // Puts all docks to the right of screen 0150, one behind the other.
    void ResetPlaces();

    // The screens there are, and those of them that are open; 0150 is first, and always open.
    QList<ScreenLine> Known() const;
    QList<ScreenLine> OpenOnes() const;

    void OnServiceRenewed();
    void OnThemeChanged();

    // Writes which screens are open, where, and what each keeps; opens them so again.
    void Save(QSettings& file) const;
    void Restore();

signals:
    void Remark(const QString& text);

private:
    void AddDock(const ScreenKind& kind);
    ScreenDock* Find(const QString& number) const;
    QList<ScreenDock*> OpenDocks() const;
    bool AloneInItsArea(ScreenDock& dock) const;
    void Fill(ScreenDock& dock);
    void OpenInRoom(ScreenDock& dock);
    void Close(ScreenDock& dock);
    void PassOn(const OwnScreen* from, const std::string& mainKey, const std::string& tag);
    void NoteFocus(QWidget* now);
    void NoteChange();

    MainWindow& window_;
    const Workplace& workplace_;
    UserState& state_;
    const std::vector<ScreenKind> kinds_;
    QList<ScreenDock*> docks_;            // the window's children, in the order of the kinds
    const ScreenDock* active_ = nullptr;  // where the keyboard was last; null for screen 0150
    QPointer<QWidget> lastIn0150_;
    std::set<std::pair<std::string, std::string>> passing_;  // tags that screens are being told of
};

}  // namespace jogeon::terminal
