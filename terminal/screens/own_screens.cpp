// Which screens the terminal has. A new one is a line here.
#include <QCoreApplication>

#include "terminal/screens/screen_kind.h"

namespace jogeon::terminal {

// 0130 interest groups, 0156 watch, 0615 chart:
//   {"0615", QT_TRANSLATE_NOOP("jogeon::terminal::ScreenKind", "차트"), MakeScreen<ChartScreen>},
std::vector<ScreenKind> OwnScreens() {
    return {};
}

}  // namespace jogeon::terminal
