// Opens an editor or a list over a cell of a grid, keeps it there, and ends it. One at most is open.
//
// What the control ends with is written into its cell only as long as that is the cell it was opened on.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "screen/fbgrid/fb_cell.h"

class CFBGrid;
class QComboBox;

namespace jogeon {

class FBInPlaceList;
struct FBGridParts;

class FBGridInPlace {
public:
    FBGridInPlace(CFBGrid& grid, FBGridParts& parts) : grid_(grid), parts_(parts) {}

    void OpenEdit(CCellID cell);
    void OpenList(CCellID cell);

    // False if that has deleted the grid.
    bool End(bool store);

    // Keeps the control over its cell; scrolled out of sight it ends.
    void Place();

    // After a change of the cells from outside: a control whose cell isn't the one it was opened on ends, and
    // what it holds is written nowhere.
    void DropOfOtherCell();

    // Takes the control off a grid that is being deleted.
    void Abandon();

private:
    struct Open {
        std::shared_ptr<QWidget> control;  // null if none is open; deleted later when nobody holds it
        CCellID cell;
        CCell known;                        // the cell as it was last seen here, to tell it from another
        std::function<void(CCell&)> store;  // writes what the control ends with
    };

    void Show(QWidget* control, CCellID cell, std::function<void(CCell&)> store);
    void Retire(const std::shared_ptr<QWidget>& control);
    CCell* OpenCell();
    void ConnectList(FBInPlaceList& list);
    void OnSelection(const QComboBox& list, int index);
    void Write(const std::function<void(CCell&)>& write);

    CFBGrid& grid_;
    FBGridParts& parts_;
    Open open_;
};

}  // namespace jogeon
