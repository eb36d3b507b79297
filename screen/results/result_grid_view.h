// The table of search results, behind the list of operations that the screen drives it by.
//
// Rows count from 1 and row 1 is the header; columns count from 1. Texts are CP949. The order of rows is the
// writer's: nothing here sorts. An operation on a row or column outside the grid does nothing.
#pragma once

#include <QTableView>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "screen/host/services.h"
#include "screen/palette/colors.h"
#include "screen/results/grid_layout.h"
#include "screen/results/pinned_column_view.h"
#include "screen/results/row_table.h"

namespace jogeon {

class ResultCellDelegate;
class ResultModel;

class ResultGrid : public PinnedColumnView {
    Q_OBJECT

public:
    // `lists` gives the names of stocks and outlives the grid.
    explicit ResultGrid(host::CodeLists& lists, QWidget* parent = nullptr);

    // --- layout
    void ApplyLayout(const GridLayout& layout);  // drops all rows
    const GridLayout& Layout() const;            // as it stands now, with widths and what is hidden

    // --- columns
    int GetColCount() const;
    bool IsColHidden(int column) const;  // true outside the grid
    void HideCols(int first, int last, bool hide);
    void SetColHeader(int column, const std::string& text);
    std::string ColumnTag(int column) const;  // the column's FID text, empty for a spare one
    void SetColumnTag(int column, const std::string& tag);
    int FindColumnByTag(const std::string& tag) const;  // 0 if there is none

    // --- rows. While updates are locked nothing is painted, and cells written are told of at the unlocking.
    void LockUpdate(bool on);
    void SetRowCount(int rows);  // the header counts
    int GetRowCount() const;
    void SetValue(int row, int column, const std::string& text);
    std::string GetValue(int row, int column) const;  // row 1 gives the header
    void SetRows(const RowTable& rows, std::size_t begin, std::size_t end, std::span<const int> gridColumns);
    void RefreshRows(int firstRow);
    void Redraw();
    void EmptyGrid();  // no rows but the header

    // --- selection
    std::vector<int> GetSelectedRows() const;  // from the top
    void SelectRange(int firstRow, int lastRow);
    void ClearSelection();
    void ScrollCellInView(int row, int column);

    // --- looks
    void SetColumnSizing(bool on);                         // whether the user may drag a column's edge
    void SetGridLines(int mode);                           // 0: none
    void SetRowColors(ColorNumber odd, ColorNumber even);  // 0: the grid's own
    void RefreshColors();                                  // after a change of the colour table

    // A cell as a copy takes it, without separators and signs that a spreadsheet can't read.
    QString CopiedText(int row, int column) const;

    // The selected rows' visible cells, with tabs between cells and line ends between rows; and the same to
    // the clipboard, unless nothing is selected.
    QString SelectedText() const;
    void CopySelection() const;

signals:
    // The user has dragged a column's edge. Pixels.
    void ColumnSized(int column, int width);
    // The user wants to choose columns.
    void ColumnSettingsAsked();
    void RowClicked(int row, int column);
    void RowDoubleClicked(int row, int column);
    // After the grid has acted on the key, so that the selection is the new one. A Qt::Key.
    void KeyPressed(int key);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void SetUpHeaders();
    void SetRowHeight();
    void OnColumnResized(int section, int oldWidth, int newWidth);
    bool HasColumn(int column) const;
    int VisibleColumnNear(int column) const;

    ResultModel* model_;  // Qt's tree owns both
    ResultCellDelegate* delegate_;
    int locks_ = 0;
    bool applying_ = false;  // a layout is being applied: widths are its, not the user's
};

}  // namespace jogeon
