#include "terminal/theme/theme_switch.h"

#include <QApplication>
#include <QMetaObject>
#include <iterator>
#include <utility>

#include "screen/palette/theme_qt.h"
#include "terminal/theme/theme_palette.h"

namespace jogeon::terminal {
namespace {

constexpr const char* kNames[] = {"auto", "light", "dark"};  // in the order of ThemeChoice

}  // namespace

QString NameOf(ThemeChoice choice) {
    return QString::fromLatin1(kNames[static_cast<std::size_t>(choice)]);
}

std::optional<ThemeChoice> ThemeChoiceOf(const QString& name) {
    for (std::size_t i = 0; i < std::size(kNames); ++i) {
        if (name == QLatin1String(kNames[i])) return static_cast<ThemeChoice>(i);
    }
    return std::nullopt;
}

// Qt 6.4 has no other way to the desktop's palette once the application has one of its own.
QPalette DesktopPalette() {
    QApplication::setPalette(QPalette());
    return QApplication::palette();
}

ThemeSwitch::ThemeSwitch(ThemeChoice choice, Desktop desktop)
    : desktop_(std::move(desktop)), choice_(choice) {
    Apply();
}

ThemeSwitch::~ThemeSwitch() {
    SetTheme(Theme::Light);
    QApplication::setPalette(QPalette());
}

void ThemeSwitch::Choose(ThemeChoice choice) {
    choice_ = choice;
    Apply();
}

void ThemeSwitch::OnDesktopChanged() {
    if (choice_ == ThemeChoice::Auto) Apply();
}

Theme ThemeSwitch::Wanted() const {
    if (choice_ == ThemeChoice::Auto) return ThemeOf(desktop_());
    return choice_ == ThemeChoice::Dark ? Theme::Dark : Theme::Light;
}

// Qt tells the windows of their palette by a posted event; Changed is posted behind it.
void ThemeSwitch::Apply() {
    SetTheme(Wanted());
    QApplication::setPalette(PaletteOf(CurrentTheme()));
    QMetaObject::invokeMethod(this, &ThemeSwitch::Changed, Qt::QueuedConnection);
}

}  // namespace jogeon::terminal
