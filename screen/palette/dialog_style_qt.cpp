#include "screen/palette/dialog_style_qt.h"

#include <QDialog>

#include "screen/palette/colors_qt.h"

namespace jogeon {
namespace {

// %1 background, %2 edge, %3 face, %4 text, %5 faint text, %6 accent, %7 text on the accent,
// %8 header background, %9 header text, %10 header line, %11 selected row.
constexpr char kSheet[] = R"(
QDialog { background: %1; }
QLabel { color: %4; }
QPushButton { background: %3; border: 1px solid %2; border-radius: 2px; padding: 0 4px; color: %4;
              min-width: 64px; min-height: 22px; }
QPushButton:hover:enabled, QPushButton:focus { border-color: %6; }
QPushButton:pressed { background: %2; }
QPushButton:disabled { color: %5; background: %1; }
QPushButton:default { background: %6; color: %7; font-weight: bold; border-color: %6; }
QPushButton:default:focus { border: 2px solid %4; }
QPushButton:default:pressed { background: %4; }
QLineEdit { background: %3; border: 1px solid %2; color: %4; padding: 0 4px; }
QLineEdit:focus { border-color: %6; }
QTreeWidget, QListWidget, QPlainTextEdit { border: 1px solid %2; outline: 0; }
QTreeWidget:focus, QListWidget:focus { border-color: %6; }
QListWidget::item:selected { background: %11; color: %4; }
.QTreeWidget::item, jogeon--ReorderListWidget::item { height: 22px; border: 0; padding-left: 4px; }
.QTreeWidget::item:selected, jogeon--ReorderListWidget::item:selected { background: %11; color: %4; }
QHeaderView::section { background: %8; color: %9; border: 0; border-bottom: 1px solid %10;
                       border-right: 1px solid %10; padding: 3px 3px 3px 6px; }
QHeaderView::section:last { border-right: 0; }
)";

QString DialogSheet() {
    const auto name = [](Color color) { return ToQColor(color).name(); };
    return QString::fromLatin1(kSheet)
        .arg(name(Color::TabBack), name(Color::ControlEdge), name(Color::ControlFace),
             name(Color::ControlText), name(Color::ControlFaintText), name(Color::Accent),
             name(Color::AccentText), name(Color::GridHeaderBack), name(Color::GridHeaderText))
        .arg(name(Color::GridHeaderLine), name(Color::GridSelectedRow));
}

}  // namespace

void StyleDialog(QDialog& dialog) {
    dialog.setStyleSheet(DialogSheet());
}

}  // namespace jogeon
