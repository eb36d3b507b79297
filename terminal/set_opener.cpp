#include "terminal/set_opener.h"

#include <cstdio>

#include "terminal/screen_driver.h"

namespace jogeon::terminal {
namespace {

constexpr int kPause = 50;  // milliseconds between two looks

}  // namespace

SetOpener::SetOpener(Terminal& terminal, const QString& set) : terminal_(terminal), set_(set) {
    connect(&timer_, &QTimer::timeout, this, &SetOpener::Try);
    timer_.start(kPause);
}

void SetOpener::Try() {
    if (!terminal_.Idle()) return;
    timer_.stop();
    if (ScreenDriver(terminal_.Window()).OpenSet(set_)) return;
    std::fprintf(stderr, "jogeon: no condition set '%s'\n", set_.toUtf8().constData());
}

}  // namespace jogeon::terminal
