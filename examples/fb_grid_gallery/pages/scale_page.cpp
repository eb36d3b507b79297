// A grid of two million cells.
#include <QElapsedTimer>
#include <QLabel>
#include <QLocale>
#include <QSpinBox>

#include "cp949.h"
#include "pages.h"

namespace {

constexpr int kRows = 100'000;
constexpr int kColumns = 20;

class ScalePage : public GridPage {
public:
    ScalePage()
        : GridPage("100,000 rows",
                   "Every cell of these is there, with its own kind and colours. Drag the scroll bar, "
                   "hold Page Down, or go to a row: it takes no longer than with a hundred rows.",
                   "scale_page.cpp"),
          row_(*new QSpinBox) {
        QElapsedTimer timer;
        timer.start();
        Fill();
        const QString cells = QLocale(QLocale::English).toString(kRows * kColumns);
        auto* filled = new QLabel(QString("%1 cells, filled in %2 ms").arg(cells).arg(timer.elapsed()));
        auto* caption = new QLabel("&Row");
        caption->setBuddy(&row_);
        row_.setRange(1, kRows);
        row_.setValue(77'777);
        row_.setGroupSeparatorShown(true);
        AddControl(*caption);
        AddControl(row_);
        AddButton("&Go", [this] { GoToRow(); });
        AddControl(*filled);
    }

    void Pose() override { GoToRow(); }

private:
    void Fill() {
        CFBGrid& grid = Grid();
        grid.AddColumn(Cp949("번호"), 90);
        for (int col = 1; col < kColumns; ++col) grid.AddColumn(Cp949("값 " + std::to_string(col)), 84);
        // --- shown
        grid.SetRowCnt_NoRedraw(1 + kRows);
        for (int row = 1; row <= kRows; ++row) {
            for (int col = 0; col < kColumns; ++col)
                grid.SetCellValue(row, col, col == 0 ? row : ValueOf(row, col));
        }
        grid.SetFixedColCnt(1);
        grid.UpdateGrid(true);  // one repaint for all of it
        // --- to here
    }

    static double ValueOf(int row, int col) { return (row * 7919LL + col * 104'729LL) % 1'000'003; }

    // --- shown
    void GoToRow() {
        Grid().SetFocusRow(row_.value(), 1);  // the header is row 0
        Grid().setFocus();
    }
    // --- to here

    QSpinBox& row_;
};

}  // namespace

std::unique_ptr<GridPage> MakeScalePage() {
    return std::make_unique<ScalePage>();
}
