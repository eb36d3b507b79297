// What the keyboard does to a grid: it moves the focus, and carries a row between two bounds.
//
// Tells the grid's parent; the grid may be gone after Key.
#pragma once

#include <QEvent>

#include "screen/fbgrid/fb_cell.h"
#include "screen/fbgrid/fb_grid_geometry.h"

class CFBGrid;

namespace jogeon {

struct FBGridParts;

class FBGridKeys {
public:
    FBGridKeys(CFBGrid& grid, FBGridParts& parts) : grid_(grid), parts_(parts) {}

    // `key` is a Qt::Key.
    void Key(int key);

    // Tells of the Delete key before any shortcut may take it. False if that has deleted the grid.
    bool TellDelete(const QEvent& event);

    // As CFBGrid's functions for the move of a row.
    void BeginMove(int minRow, int maxRow);
    void EndMove();

    // Ends a move after rows have gone.
    void DropMove();

private:
    void FocusKey(int key, CCellID at);
    void EnterKey();
    void MoveKey(int key);
    void PageKey(CCellID at, ScrollStep step);
    void VerticalKey(CCellID at, int direction);
    void HorizontalKey(CCellID at, int direction);
    int NextShownColumn(int col, int direction) const;

    CFBGrid& grid_;
    FBGridParts& parts_;
};

}  // namespace jogeon
