// What a screen may do when it is told of a double click, a right click or the Delete key.
#include <QLabel>
#include <QMenu>

#include <screen/fbgrid/fb_grid_geometry.h>

#include "hands.h"
#include "pages.h"
#include "stocks.h"

namespace {

class ClicksPage : public GridPage {
public:
    ClicksPage()
        : GridPage("Clicks and keys",
                   "Double-click a row, right-click one, press Enter or Delete; walk with the arrow "
                   "keys, Page Up, Page Down or the wheel. The log says what the grid tells, and the "
                   "page decides what comes of it.",
                   "clicks_page.cpp"),
          said_(*new QLabel) {
        CFBGrid& grid = Grid();
        AddStockColumns(grid);
        const std::vector<Stock> stocks = Stocks();
        grid.SetRowCnt(1 + static_cast<int>(stocks.size()));
        for (int row = 1; row < grid.GetRowCnt(); ++row)
            SetStock(grid, row, 0, stocks[static_cast<std::size_t>(row) - 1]);
        AddControl(said_);
    }

    void Pose() override {
        DoubleClick(Grid(), {3, 2});
        PressKey(Grid(), Qt::Key_Down);
        PressKey(Grid(), Qt::Key_Return);
    }

protected:
    // --- shown
    void OnNotify(const FBGridNotify& notify) override {
        switch (notify.code) {
            case FBGridNotify::kDoubleClicked: {
                jogeon::_tagGridHitTestInfo hit;  // row, col: x and y
                notify.grid.Geometry().HitTest({notify.row, notify.col}, hit);
                Say(QString("Double click: %1, %2").arg(hit.row).arg(hit.col));
                break;
            }
            case FBGridNotify::kRightPressed:  // the focus has not moved
                notify.grid.SetCellFocus(notify.row, notify.col, true, true);
                OpenMenu();
                break;
            case FBGridNotify::kDeleteKey:
                DeleteFocusedRow();
                break;
        }
    }

    void DeleteFocusedRow() {
        CFBGrid& grid = Grid();
        const CCellID at = grid.GetFocusedCellID();
        if (at.row < grid.GetFixedRowCnt() || at.row >= grid.GetRowCnt()) return;
        grid.DeleteRow(at.row);
        const int last = grid.GetRowCnt() - 1;
        if (last >= grid.GetFixedRowCnt()) grid.SetCellFocus(qMin(at.row, last), at.col, true, true);
    }
    // --- to here

private:
    void OpenMenu() {
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction("&Delete this row", this, [this] { DeleteFocusedRow(); });
        menu->popup(QCursor::pos());
    }

    void Say(const QString& text) { said_.setText(text); }

    QLabel& said_;
};

}  // namespace

std::unique_ptr<GridPage> MakeClicksPage() {
    return std::make_unique<ClicksPage>();
}
