// CFBGrid: a grid of heap cells that draws itself, for any screen of the terminal.
//
//     auto* grid = new CFBGrid(this);
//     grid->AddColumn(title, 120);                 // CP949; makes the header row
//     grid->SetRowCnt(1 + count);
//     (*grid)[1][0].state = CCell::kCheck;         // cells are read and changed in place ...
//     grid->InvalidateCell(1, 0);                  // ... and repainted on request
//
// The grid takes no decision about its rows: it moves the focus, runs its in-place controls and tells its
// parent widget by FBGridNotify. Whoever is told may do as he likes, delete rows or the grid itself too.
// Data and sizes are those of FBGridData; user-interface thread only.
#pragma once

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPixmap>
#include <filesystem>
#include <memory>
#include <vector>

#include "screen/fbgrid/fb_grid_data.h"

class CFBGrid;

namespace jogeon {
class FBGridGeometry;
struct FBGridParts;
}  // namespace jogeon

// What the grid tells its parent: sent, not posted, to parentWidget()'s event(). Fields that a code doesn't
// set are -1; the row is then that of GetFocusedCellID.
class FB_GRID_API FBGridNotify : public QEvent {
public:
    enum Code {
        kDeleteKey = 0,
        kEnterKey = 1,
        kChildCommand = 2,    // the selection of an in-place list has changed
        kCheckToggled = 3,    // not for a disabled check box
        kButtonPressed = 5,   // row, col: a push button was released inside its cell
        kHeaderPressed = 6,   // row, col
        kCellPressed = 8,     // row, col: after the focus has moved
        kRightPressed = 9,    // row, col
        kDoubleClicked = 10,  // row, col: the pointer's x and y; not on a push button
        kRowDropped = 11,     // row: target, col: source
    };

    FBGridNotify(CFBGrid& from, int code, int row = -1, int col = -1);
    static QEvent::Type EventType();

    CFBGrid& grid;
    const int id;  // the grid's control id
    const int code;
    const int row;
    const int col;
};

// The colours that go with the keyboard focus, for screens that draw a mark of their own.
struct FBFocusColours {
    FBColour back = fbcolour::kHighlight;
    FBColour unfocusedText = 0xFFFFFF;
    FBColour focusedText = 0xFFFFFF;

    bool operator==(const FBFocusColours&) const = default;
};

class FB_GRID_API CFBGrid : public QAbstractScrollArea, public FBGridData {
    Q_OBJECT

public:
    // Has no frame; setFrameStyle gives it one.
    explicit CFBGrid(QWidget* parent = nullptr);
    ~CFBGrid() override;

    // Makes it a child of `parent` at `rect`, with the parent's font and the control id `id`. It appears with
    // its parent; where that is on the screen already, show() is up to the caller. True.
    bool Create(const QRect& rect, QWidget* parent, int id);
    int ControlId() const;

    // --- looks

    void SetImageList(const std::vector<QPixmap>* images);  // not owned; null for none
    void SetFont(const QFont& font);
    void SetFixedCellColor(FBColour colour);
    FBColour GetFixedCellColor() const;
    void SetGridLine(FBColour colour);

    // --- focus; a cell that isn't there is ignored

    // Gives a cell the focus; a second focus on an edit cell opens its editor, a list cell opens its list,
    // and a check box is toggled unless `noToggle`.
    void SetCellFocus(int row, int col, bool redraw, bool noToggle);

    // False if no focused cell is on the window.
    bool KillCellFocus(bool redraw);

    // Gives a cell the focus and scrolls its row to the top, if it lies below the window's first page.
    void SetFocusRow(int row, int col);

    // While a row moves, the Up and Down keys carry the focused row between the bounds; Enter, a click or the
    // loss of the focus ends it. Without a focused cell no move begins.
    void BeginMoveRow(int minRow, int maxRow);
    void EndMoveRow();

    // The column whose cells start a drag of their row, -1 for none.
    void SetDragAndDropColumn(int col);

    // --- what a click does where there is no pointer: assistive tools

    // Presses and releases the left button on a cell.
    void PressCell(int row, int col);

    // --- repaint and scrolling; `bar` is Qt::Horizontal or Qt::Vertical

    bool InvalidateCell(int row, int col);  // false if it isn't on the window
    void InvalidateRow(int row);

    // Scrolls to the start; `redraw` repaints the window.
    void UpdateGrid(bool redraw);

    // True: that bar stays, disabled, where there is nothing to scroll.
    void FixScrollBar(bool horizontal, bool vertical);

    // Fits the bars to the sizes of the rows, the columns and the window.
    void ResetScrollBars();

    // Positions are pixels; one beyond the range is cut to it. `track` asks for the thumb's place.
    void SetScrollPos32(Qt::Orientation bar, int pos, bool redraw);
    int GetScrollPos32(Qt::Orientation bar, bool track = false) const;

    // Where the cells stand on the window just now (screen/fbgrid/fb_grid_geometry.h). It is good until
    // anything is changed.
    jogeon::FBGridGeometry Geometry() const;

    // --- pictures of a row or of a text, for a host that drags one; and a drop from another window, which
    //     the grid takes no notice of

    QPixmap CreateDragImage(int row) const;  // null for a row that isn't there
    QPixmap MakeDragImage2(const std::string& text) const;
    void DropData(const std::string& text, QPoint point);

    // --- Excel worksheets. A failure is told in a message box over the grid.

    void SaveToExcel(const std::filesystem::path& path);

    // Asks for the file; saves the columns from `firstCol` to `lastCol`, with `title` two lines below the
    // rows.
    void SaveToExcelPartially(const std::string& title, int firstCol, int lastCol);

protected:
    const FBFocusColours& FocusColours() const;

    // Whoever overrides one of these hands on what he has no use for: the grid lives by them.
    void OnSizesChanged(bool redraw) override;
    void OnCellsChanged() override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    std::unique_ptr<jogeon::FBGridParts> parts_;
};
