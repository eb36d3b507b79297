#include "terminal/window/screen_bed.h"

namespace jogeon::terminal {

ScreenBed::ScreenBed(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setWidgetResizable(true);
}

void ScreenBed::Lay(QWidget& screen) {
    setWidget(&screen);
    Fit();
}

void ScreenBed::Fit() {
    if (QWidget* screen = widget()) {
        screen->resize(size().expandedTo(screen->minimumSize()).boundedTo(screen->maximumSize()));
    }
}

}  // namespace jogeon::terminal
