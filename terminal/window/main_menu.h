// The menu of the main window. It knows no screen and no setting: it says what was chosen.
#pragma once

#include <QActionGroup>
#include <QList>
#include <QMainWindow>
#include <QMenu>
#include <functional>

#include "terminal/language.h"
#include "terminal/theme/theme_switch.h"

namespace jogeon::terminal {

// A screen as the menu offers it.
struct ScreenLine {
    QString number;
    QString text;
    bool active = false;  // the user is in it
};

class MainMenu : public QObject {
    Q_OBJECT

public:
    // Fills the window's menu bar. `known` are the screens that can be opened, with Alt+1 and so on for keys;
    // `open` is asked for the ones that are, whenever the menu is shown.
    MainMenu(QMainWindow& window, const QList<ScreenLine>& known, std::function<QList<ScreenLine>()> open);

    // Marks what is in force.
    void Show(ThemeChoice theme, Language language);

signals:
    void ScreenChosen(const QString& number);
    void CloseAllChosen();
    void ThemeChosen(ThemeChoice theme);
    void LanguageChosen(Language language);
    void FullScreenChosen(bool full);
    void ResetChosen();
    void KeysChosen();
    void AboutChosen();

private:
    void BuildFileMenu();
    void BuildScreenMenu(const QList<ScreenLine>& known);
    void BuildViewMenu();
    void BuildThemes(QMenu& menu);
    void BuildLanguages(QMenu& menu);
    void BuildHelpMenu();
    void ListOpenScreens();
    QAction* AddChoice(QMenu& menu, QActionGroup& group, const QString& text, const QString& name);

    QMainWindow& window_;
    const std::function<QList<ScreenLine>()> open_;
    QMenu* screens_ = nullptr;
    QAction* closeAll_ = nullptr;
    QList<QAction*> openScreens_;
    QActionGroup active_{this};
    QActionGroup themes_{this};
    QActionGroup languages_{this};
};

}  // namespace jogeon::terminal
