// The editor that opens over a cell of CFBGrid.
//
// It takes the cell's text, or its number, and gives it back when asked. It tells when it has ended, and
// leaves storing, the focus and its own deletion to the grid. There is no way to cancel it.
#pragma once

#include <QLineEdit>

#include "screen/fbgrid/fb_cell.h"

namespace jogeon {

class FBInPlaceEdit : public QLineEdit {
    Q_OBJECT

public:
    FBInPlaceEdit(QWidget* parent, const CCell& cell);

    // Writes the text, or the number for a numeric cell. A text that was left as it was is not written: the
    // cell may hold more digits than are shown.
    void StoreInto(CCell& cell) const;

signals:
    // Tab, Enter or Escape was pressed, or the focus has gone.
    void Ended();

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    const QString opened_;
};

}  // namespace jogeon
