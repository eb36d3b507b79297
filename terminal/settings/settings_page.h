// A page of the settings dialog: it shows some of the screen's settings and takes them back.
#pragma once

#include <QWidget>

#include "screen/settings/screen_settings.h"

namespace jogeon::terminal {

class SettingsPage : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual void Show(const ScreenSettings& settings) = 0;

    // Writes the page's own settings; the others stay as they are.
    virtual void Take(ScreenSettings& settings) const = 0;
};

}  // namespace jogeon::terminal
