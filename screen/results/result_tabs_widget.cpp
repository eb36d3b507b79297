#include "screen/results/result_tabs_widget.h"

#include <QSignalBlocker>

#include "screen/palette/colors_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

QString TabStyle(int padding) {
    return QStringLiteral(
               "QTabBar::tab { background: %1; color: %2; border: 1px solid %3; padding: 2px %6px;"
               " margin-right: 2px; }"
               "QTabBar::tab:selected { background: %4; color: %5; border-bottom-color: %4; }"
               "QTabBar::tab:selected:bottom { border-top-color: %4; border-bottom-color: %3; }")
        .arg(ToQColor(Color::TabBack).name(), ToQColor(Color::TabText).name(),
             ToQColor(Color::TabEdge).name(), ToQColor(Color::TabSelectedBack).name(),
             ToQColor(Color::TabSelectedText).name())
        .arg(padding);
}

}  // namespace

CNVTab::CNVTab(QWidget* parent, int padding) : QTabBar(parent), padding_(padding) {
    setExpanding(false);
    setDrawBase(false);
    setElideMode(Qt::ElideNone);  // narrow space is scrolled, so that "[12]" can be told from "[1]"
    setUsesScrollButtons(true);
    RefreshColors();
}

std::string CNVTab::TabLabel(int tab) const {
    return FromQString(tabText(tab));
}

void CNVTab::AddTab(const std::string& label) {
    const QSignalBlocker quiet(this);
    addTab(ToQString(label));
}

void CNVTab::SelectTab(int tab) {
    const QSignalBlocker quiet(this);
    setCurrentIndex(tab);
}

void CNVTab::RemoveTab(int tab) {
    const QSignalBlocker quiet(this);
    removeTab(tab);
}

void CNVTab::RefreshColors() {
    setStyleSheet(TabStyle(padding_));
}

}  // namespace jogeon
