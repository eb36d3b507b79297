// What the result flow and the links need of the window: the grid, the tabs, the counts and the notice.
//
// Grid columns count from 1. Grid row 1 is the header, and row r of a result, from 0, stands in grid row r
// + 2. Operations change the window only: none of them calls back into the flow, so that selecting a tab here
// is not a tab change of the user's.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "screen/results/row_table.h"

namespace jogeon {

inline constexpr int kFirstResultRow = 2;  // of the grid

class ResultView {
public:
    virtual ~ResultView() = default;

    // --- grid: columns
    virtual int GetColCount() const = 0;
    virtual bool IsColHidden(int column) const = 0;
    virtual void HideCols(int first, int last, bool hide) = 0;
    virtual void SetColHeader(int column, const std::string& text) = 0;
    virtual std::string ColumnTag(int column) const = 0;  // the column's FID text, empty for a spare one
    virtual void SetColumnTag(int column, const std::string& tag) = 0;

    // --- grid: rows. Writing stands between LockUpdate(true) and LockUpdate(false), Redraw().
    virtual void LockUpdate(bool on) = 0;
    // `rows` counts the header. Rows that stay keep their texts; new ones are empty.
    virtual void SetRowCount(int rows) = 0;
    // Writes rows `begin` to `end` (behind the last) of `rows` into the grid rows from begin + 2 on: column c
    // of the table goes to grid column gridColumns[c], and nowhere where that is 0.
    virtual void SetRows(const RowTable& rows, std::size_t begin, std::size_t end,
                         std::span<const int> gridColumns) = 0;
    // Tells the grid its new row count and refreshes the grid rows from `firstRow` to the end.
    virtual void RefreshRows(int firstRow) = 0;
    virtual void Redraw() = 0;
    virtual void EmptyGrid() = 0;         // no rows but the header
    virtual int GetRowCount() const = 0;  // the header counts
    // The text as it came, empty outside the grid.
    virtual std::string GetValue(int row, int column) const = 0;
    virtual int FindColumnByTag(const std::string& tag) const = 0;  // 0 if there is none

    // --- grid: selection
    virtual void ClearSelection() = 0;
    virtual void ScrollCellInView(int row, int column) = 0;
    virtual void SelectRow(int row) = 0;
    virtual std::vector<int> GetSelectedRows() const = 0;  // from the top

    // --- tabs, by index from 0
    virtual int TabCount() const = 0;
    virtual int SelectedTab() const = 0;  // -1 without tabs
    virtual void AddTab(const std::string& label) = 0;
    virtual void SelectTab(int tab) = 0;
    virtual void RemoveTab(int tab) = 0;

    // --- beside them
    virtual int SelectedScope() const = 0;  // index of the scope list, 0 to 3
    virtual void SelectScope(int scope) = 0;
    virtual void SetNextEnabled(bool enabled) = 0;
    // Shows the counts as numbers and as the progress bar's range 0 to `total` and position `received`.
    virtual void ShowCounts(int total, int received) = 0;
    // What the code-list button holds: its title and the stocks behind it.
    virtual void SetCodeList(const std::string& title, const std::vector<std::string>& codes) = 0;
    virtual void ShowNoResultNotice() = 0;  // modal, closes by itself
};

}  // namespace jogeon
