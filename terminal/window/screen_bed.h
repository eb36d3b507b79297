// The middle of the main window, where screen 0150 lies: at the top, in the middle of the width, and never
// larger than its maximum size. Where there is less room than its minimum size it scrolls.
#pragma once

#include <QScrollArea>

namespace jogeon::terminal {

class ScreenBed : public QScrollArea {
public:
    explicit ScreenBed(QWidget* parent = nullptr);

    // `screen` becomes a child.
    void Lay(QWidget& screen);

    // Sizes the screen by its limits, which may have changed.
    void Fit();
};

}  // namespace jogeon::terminal
