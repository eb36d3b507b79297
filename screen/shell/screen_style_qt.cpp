#include "screen/shell/screen_style_qt.h"

#include "screen/palette/colors.h"
#include "screen/palette/colors_qt.h"
#include "screen/shell/control_table.h"

namespace jogeon {
namespace {

// %1 background, %2 edge, %3 face, %4 text, %5 faint text, %6 accent, %7 number of the search button,
// %8 of the expression's edit, %9 its background,
// %10 to %13 numbers of labels, %14 text on the accent.
constexpr char kSheet[] = R"(
jogeon--ScreenForm { background: %1; }
QPushButton { background: %3; border: 1px solid %2; border-radius: 2px; padding: 0 2px; color: %4; }
QPushButton:hover:enabled { border-color: %6; }
QPushButton:pressed { background: %2; }
QPushButton:disabled { color: %5; background: %1; }
QPushButton#%7 { background: %6; color: %14; font-weight: bold; border-color: %6; }
QPushButton#%7:pressed { background: %4; }
QLabel, QRadioButton, QCheckBox { color: %4; }
CFBGrid, jogeon--ResultGrid { border: 1px solid %2; }
QToolTip { background: %3; border: 1px solid %2; color: %4; padding: 1px; }
QPlainTextEdit#%8 { background: %9; border: 1px solid %2; color: %4; font-weight: bold; }
QLabel#%10 { font-weight: bold; }
QLabel#%11 { background: %3; border: 1px solid %2; padding-left: 4px; }
QLabel#%12, QLabel#%13 { font-weight: bold; }
QLabel:disabled, QRadioButton:disabled, QCheckBox:disabled { color: %5; }
jogeon--BBoxPanel { background: %3; border: 1px solid %2; color: %4; }
jogeon--BBoxPanel QPushButton[usual="true"] { border-color: %6; color: %6; font-weight: bold; }
jogeon--BBoxPanel QPushButton[usual="true"]:pressed { background: %2; }
)";

}  // namespace

QString ScreenStyle(const QColor& background) {
    const auto name = [](Color color) { return ToQColor(ColorOf(color)).name(); };
    return QString::fromLatin1(kSheet)
        .arg(background.name(), name(Color::ControlEdge), name(Color::ControlFace), name(Color::ControlText),
             name(Color::ControlFaintText), name(Color::Accent))
        .arg(control::kSearch)
        .arg(control::kExpression)
        .arg(name(Color::ExpressionBack))
        .arg(control::kNameLabel)
        .arg(control::kTargetLabel)
        .arg(control::kTotalCount)
        .arg(control::kReceivedCount)
        .arg(name(Color::AccentText));
}

}  // namespace jogeon
