// Which screens the terminal has. A new one is a line here.
#include <QCoreApplication>

#include "terminal/chart/chart_screen.h"
#include "terminal/interest/interest_screen.h"
#include "terminal/screens/screen_kind.h"
#include "terminal/watch/watch_screen.h"

namespace jogeon::terminal {

std::vector<ScreenKind> OwnScreens() {
    return {
        {"0615", QT_TRANSLATE_NOOP("jogeon::terminal::ScreenKind", "차트"), MakeScreen<ChartScreen>},
        {"0156", QT_TRANSLATE_NOOP("jogeon::terminal::ScreenKind", "실시간 조건검색"),
         MakeScreen<WatchScreen>},
        {"0130", QT_TRANSLATE_NOOP("jogeon::terminal::ScreenKind", "관심그룹"), MakeScreen<InterestScreen>},
    };
}

}  // namespace jogeon::terminal
