// The drop-down list that opens over a cell of CFBGrid, drawn flat.
//
// It takes the list's texts and the cell's selection. It tells when it has ended, and leaves storing, the
// focus and its own deletion to the grid. Selections and typing are told by QComboBox's own signals.
#pragma once

#include <QComboBox>

#include "screen/fbgrid/fb_cell.h"
#include "screen/fbgrid/fb_grid_data.h"

namespace jogeon {

class FBInPlaceList : public QComboBox {
    Q_OBJECT

public:
    // A box that can be typed in for a CCell::kFreeList cell.
    FBInPlaceList(QWidget* parent, const CStringArray& items, const CCell& cell);

    // What the loss of the focus stores: the selection of a CCell::kList cell.
    void StoreSelection(CCell& cell) const;

    void showPopup() override;

signals:
    // Tab, Enter or Escape was pressed, or the focus has gone to a window that closes the list.
    void Ended();

    // A key for the grid: Left or Right.
    void KeyPassed(int key);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool TakesKey(QEvent& event);
};

}  // namespace jogeon
