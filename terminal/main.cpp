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

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("jogeon");
    QApplication::setStyle("Fusion");
    ChooseFont();
    int status = 0;
    const std::optional<Options> options = ReadOptions(QApplication::arguments(), &status);
    if (!options) return status;
    try {
        return Start(*options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "jogeon: %s\n", error.what());
        return kFailure;
    }
}
