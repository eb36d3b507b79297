// Which theme all windows have: a choice of the user, or the desktop's.
//
// Relies on QApplication's palette, which it sets, and on the theme of screen/palette, which it sets first.
// The windows hear of a change from Qt; Changed comes when they have.
#pragma once

#include <QObject>
#include <QPalette>
#include <QString>
#include <functional>
#include <optional>

#include "screen/palette/colors.h"

namespace jogeon::terminal {

enum class ThemeChoice { Auto, Light, Dark };

// "auto", "light" and "dark".
QString NameOf(ThemeChoice choice);
std::optional<ThemeChoice> ThemeChoiceOf(const QString& name);

// The palette that the desktop gives to programs. Drops the application's own.
QPalette DesktopPalette();

class ThemeSwitch : public QObject {
    Q_OBJECT

public:
    using Desktop = std::function<QPalette()>;

    // Takes effect at once. `desktop` tells the desktop's palette whenever that is asked for.
    explicit ThemeSwitch(ThemeChoice choice, Desktop desktop = DesktopPalette);

    // Leaves the application with the desktop's palette.
    ~ThemeSwitch() override;

    void Choose(ThemeChoice choice);
    ThemeChoice Choice() const { return choice_; }

    // The desktop's colours may be others now.
    void OnDesktopChanged();

signals:
    void Changed();

private:
    Theme Wanted() const;
    void Apply();

    const Desktop desktop_;
    ThemeChoice choice_;
};

}  // namespace jogeon::terminal
