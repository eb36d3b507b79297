// Which theme the desktop's palette asks for.
//
// The terminal gives the application a palette and tells its screens of a change; a screen finds its theme
// from it, and so do the terminal's own colours.
#pragma once

#include <QGuiApplication>
#include <QPalette>

#include "screen/palette/colors_qt.h"

namespace jogeon {

// Dark if its text is lighter than its windows.
inline Theme ThemeOf(const QPalette& palette) {
    const auto brightness = [&](QPalette::ColorRole role) { return qGray(palette.color(role).rgb()); };
    return brightness(QPalette::Window) < brightness(QPalette::WindowText) ? Theme::Dark : Theme::Light;
}

inline Theme ApplicationTheme() {
    return ThemeOf(QGuiApplication::palette());
}

}  // namespace jogeon
