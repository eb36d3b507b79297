#include "tests/environment.h"

#include <cstdlib>

// The sanitizers ask the program for these by name.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __ubsan_default_options();      // NOLINT(bugprone-reserved-identifier)

// Libraries that keep memory until the process ends.
const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\nleak:libQt6Gui\nleak:libQt6Widgets\nleak:libqoffscreen\n";
}

const char* __ubsan_default_options() {
    return "print_stacktrace=1";
}

namespace jogeon::test {

void PrepareEnvironment() {
    constexpr int kKeepOld = 0;
    setenv("JOGEON_HOME_DATA", JOGEON_HOME_DATA, kKeepOld);
    setenv("QT_QPA_PLATFORM", "offscreen", kKeepOld);
    setenv("QT_LOGGING_RULES", "default.warning=false", kKeepOld);
}

}  // namespace jogeon::test
