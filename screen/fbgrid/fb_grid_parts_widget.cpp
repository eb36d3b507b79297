#include "screen/fbgrid/fb_grid_parts_widget.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>

namespace jogeon {

FBGridParts::FBGridParts(CFBGrid& owner)
    : grid(owner),
      inPlace(owner, *this),
      scroll(owner, *this),
      sizes(owner, *this),
      focus(owner, *this),
      keys(owner, *this),
      mouse(owner, *this) {}

bool FBGridParts::Notify(int code, int row, int col) {
    const QPointer<CFBGrid> alive(&grid);
    if (QWidget* parent = grid.parentWidget()) {
        FBGridNotify notify(grid, code, row, col);
        QCoreApplication::sendEvent(parent, &notify);
    }
    return !alive.isNull();
}

bool FBGridParts::TakeFocus() {
    const QPointer<CFBGrid> alive(&grid);
    grid.setFocus(Qt::MouseFocusReason);
    return !alive.isNull();
}

void FBGridParts::PressKey(int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&grid, &press);
}

const FBGridLook& FBGridParts::LookNow(CCellID pressedButton) {
    look.font = grid.font();
    look.palette = grid.palette();
    look.pressedButton = pressedButton;
    return look;
}

}  // namespace jogeon
