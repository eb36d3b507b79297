// What the pointer does to a grid: presses, clicks, the drag of a row, and turns of the wheel.
//
// Tells the grid's parent; the grid may be gone after each of these functions.
#pragma once

#include <QMouseEvent>
#include <QWheelEvent>

#include "screen/fbgrid/fb_cell.h"

class CFBGrid;

namespace jogeon {

struct FBGridParts;

class FBGridMouse {
public:
    FBGridMouse(CFBGrid& grid, FBGridParts& parts) : grid_(grid), parts_(parts) {}

    void SetDragColumn(int col) { dragColumn_ = col; }

    void Press(QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(QMouseEvent& event);
    void DoubleClick(const QMouseEvent& event);
    void Wheel(const QWheelEvent& event);

    // A whole click of the left button.
    void PressCell(CCellID cell);

    // Ends a press or a drag with nothing done.
    void Cancel();

private:
    void PressLeft(QPoint point);
    bool PressBody(CCellID cell);
    void DropRow(QPoint point, QMouseEvent& event);
    bool IsOn(CCellID cell, QPoint point) const;
    bool IsButton(CCellID cell) const;

    CFBGrid& grid_;
    FBGridParts& parts_;
    int dragColumn_ = -1;
    int wheelDelta_ = 0;  // of turns that have not made a whole notch yet
};

}  // namespace jogeon
