// Scroll bars that come and go, or stay.
#include <QCheckBox>

#include "cp949.h"
#include "pages.h"

namespace {

constexpr int kFewRows = 5;
constexpr int kManyRows = 60;
constexpr int kFewColumns = 4;
constexpr int kManyColumns = 24;

class ScrollPage : public GridPage {
public:
    ScrollPage()
        : GridPage("Scroll bars",
                   "A bar that has nothing to scroll is hidden, unless it is locked: then it stays and "
                   "is disabled, and the cells keep their place when rows come and go. A window always "
                   "starts with a whole row.",
                   "scroll_page.cpp"),
          across_(Box("Lock the hori&zontal bar")),
          upright_(Box("Lock the &vertical bar")),
          rows_(Box("Many &rows")),
          columns_(Box("Many c&olumns")) {
        Resize();
    }

    void Pose() override {
        across_.setChecked(true);
        rows_.setChecked(true);
        Grid().SetFocusRow(30, 1);
    }

private:
    QCheckBox& Box(const QString& text) {
        auto& box = *new QCheckBox(text);
        connect(&box, &QCheckBox::toggled, this, [this] { Resize(); });
        AddControl(box);
        return box;
    }

    void Resize() {
        CFBGrid& grid = Grid();
        const int rows = rows_.isChecked() ? kManyRows : kFewRows;
        const int columns = columns_.isChecked() ? kManyColumns : kFewColumns;
        // --- shown
        grid.FixScrollBar(across_.isChecked(), upright_.isChecked());
        grid.SetColCnt(columns);
        grid.SetRowCnt_NoRedraw(1 + rows);  // the repaint comes with UpdateGrid
        grid.SetFixedRowCnt(1);
        // --- to here
        for (int row = 0; row <= rows; ++row) {
            for (int col = 0; col < columns; ++col) {
                std::string text = row == 0 ? "" : std::to_string(row).append("행 ");
                text.append(std::to_string(col)).append("열");
                grid[row][col].text = Cp949(text);
                grid[row][col].format = CCell::kCentre;
            }
        }
        FocusFirstCell();
        // --- shown
        grid.UpdateGrid(true);  // fits the bars, and back to the start
        // --- to here
    }

    QCheckBox& across_;
    QCheckBox& upright_;
    QCheckBox& rows_;
    QCheckBox& columns_;
};

}  // namespace

std::unique_ptr<GridPage> MakeScrollPage() {
    return std::make_unique<ScrollPage>();
}
