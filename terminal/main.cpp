// The desktop terminal.
#include <QApplication>
#include <cstdio>
#include <exception>
#include <optional>

#include "screen/host/message_boxes_qt.h"
#include "screen/text/cp949.h"
#include "terminal/demonstration.h"
#include "terminal/look/application_look.h"
#include "terminal/options.h"
#include "terminal/set_opener.h"
#include "terminal/terminal.h"

namespace {

using namespace jogeon::terminal;

constexpr int kFailure = 2;

// Printed, and in a box for a desktop user, who doesn't see that.
void TellFailure(const Options& options, const char* why) {
    std::fprintf(stderr, "jogeon: %s\n", why);
    if (!options.demonstrate.isEmpty() || QGuiApplication::platformName() == "offscreen") return;
    QWidget nobody;
    jogeon::host::MessageBoxes(nobody).Ask({jogeon::ToCp949(why), "jogeon", jogeon::host::Icon::Warning});
}

int Start(const Options& options) {
    Terminal terminal(options);
    if (!options.demonstrate.isEmpty()) return Demonstrate(terminal, options.openSet, options.demonstrate);
    terminal.Window().show();
    std::optional<SetOpener> opener;
    if (!options.openSet.isEmpty()) opener.emplace(terminal, options.openSet);
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
    SetApplicationLook();
    try {
        return Start(*options);
    } catch (const std::exception& error) {
        TellFailure(*options, error.what());
        return kFailure;
    }
}
