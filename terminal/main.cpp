// The desktop terminal.
#include <QApplication>
#include <QFontDatabase>
#include <QTimer>
#include <cstdio>
#include <exception>

#include "terminal/demonstration.h"
#include "terminal/options.h"
#include "terminal/screen_driver.h"
#include "terminal/terminal.h"

namespace {

using namespace jogeon::terminal;

constexpr int kFailure = 2;
constexpr int kFontPoints = 9;

// A font that has Korean and reads well in small sizes, where the system has one.
void ChooseFont() {
    for (const char* family : {"Malgun Gothic", "Apple SD Gothic Neo", "NanumGothic", "Noto Sans CJK KR"}) {
        if (!QFontDatabase::families().contains(family)) continue;
        QApplication::setFont(QFont(family, kFontPoints));
        return;
    }
}

int Start(const Options& options) {
    Terminal terminal(options);
    if (!options.demonstrate.isEmpty()) return Demonstrate(terminal, options.openSet, options.demonstrate);
    terminal.Window().show();
    if (!options.openSet.isEmpty() && !ScreenDriver(terminal.Window()).OpenSet(options.openSet)) {
        std::fprintf(stderr, "jogeon: no condition set '%s'\n", options.openSet.toUtf8().constData());
    }
    return QApplication::exec();
}

// Read before there is a window system to connect to: help needs none.
std::optional<Options> ReadArguments(int argc, char** argv, int* status) {
    const QCoreApplication application(argc, argv);
    return ReadOptions(QCoreApplication::arguments(), status);
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setApplicationName("jogeon");
    int status = 0;
    const std::optional<Options> options = ReadArguments(argc, argv, &status);
    if (!options) return status;
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    ChooseFont();
    try {
        return Start(*options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "jogeon: %s\n", error.what());
        return kFailure;
    }
}
