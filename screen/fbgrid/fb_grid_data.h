// What CFBGrid holds: rows, columns and cells, with all operations on them that need no window.
//
// Rows and columns count from 0, header rows and columns first. An index that isn't there is a fault of the
// caller: a debug build stops at an assertion, a release build ignores the operation (0 comes back, or a cell
// that belongs to no grid). User-interface thread only.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screen/fbgrid/fb_axis.h"
#include "screen/fbgrid/fb_cell.h"
#include "screen/fbgrid/fb_export.h"

// The texts of one drop-down list, CP949.
using CStringArray = std::vector<std::string>;

class FB_GRID_API FBGridData {
public:
    FBGridData() = default;
    FBGridData(const FBGridData&) = delete;
    FBGridData& operator=(const FBGridData&) = delete;
    virtual ~FBGridData() = default;

    // --- counts and sizes, in pixels

    int GetRowCnt() const { return rows_.Count(); }
    int GetColCnt() const { return columns_.Count(); }
    int GetFixedRowCnt() const { return fixedRows_; }
    int GetFixedColCnt() const { return fixedColumns_; }

    // How many of the first rows and columns are headers. No check against the counts, no redraw.
    void SetFixedRowCnt(int n) { fixedRows_ = n; }
    void SetFixedColCnt(int n) { fixedColumns_ = n; }

    // New rows and columns have default sizes and default cells; those from `n` on are freed. 0 sets the
    // fixed count to 0 as well. The _NoRedraw form leaves the repaint to the caller.
    void SetRowCnt(int n);
    void SetRowCnt_NoRedraw(int n);
    void SetColCnt(int n);

    // 1, or 0 for an index that isn't there (which is no fault here).
    int SetRowHeight(int row, int height);
    int SetColWidth(int col, int width);
    int GetRowHeight(int row) const { return rows_.Size(row); }
    int GetColWidth(int col) const { return columns_.Size(col); }

    // For rows and columns made later.
    void SetDefRowHeight(int height) { defaultRowHeight_ = height; }
    void SetDefColWidth(int width) { defaultColumnWidth_ = width; }

    int GetVirtualWidth() const;
    int GetVirtualHeight() const;
    int GetFixedColWidth() const;
    int GetFixedRowHeight() const;

    // Adds a column under a centred header. The grid is left with its one header row: rows that were there
    // go.
    void AddColumn(const std::string& title, int width);

    void DeleteRow(int row);

    // Deletes all rows but row 0. If there were any, the drop-down lists go too.
    void DeleteAll();

    // --- cells

    bool IsValid(int row, int col) const;
    bool IsNonHeaderCell(int row, int col) const;  // despite its name, true for a row of the fixed ones

    CCell& GetCell(int row, int col);
    const CCell& GetCell(int row, int col) const;
    CRow& operator[](int row);
    const CRow& operator[](int row) const;

    void SetCell(int row, int col, const CCell& cell);  // copies all fields
    void SetCellValue(int row, int col, double value);  // makes the cell a right-aligned number
    void SwapCellInfo(int row1, int col1, int row2, int col2);

    // Empties all cells outside the header rows and columns; colours, format and list stay.
    void InitNonFixedCell();

    // Empties a row. A cell that is a check box and nothing else becomes a disabled one; any other loses its
    // kind.
    void ClearRow(int row, bool redraw);

    // Copies a row over another and clears the source as ClearRow does.
    void MoveRowData(int fromRow, int toRow, bool redraw);

    // Takes a list that cells name by its place: 0 for the first.
    void AddDropDownItem(std::unique_ptr<CStringArray> list);
    void ClearComboList();
    const CStringArray* DropDownItems(int index) const;  // null if there is no such list

    // Stores and reads the focused cell, with no other effect.
    void SetFocusedCellID(CCellID id) { focused_ = id; }
    CCellID GetFocusedCellID() const { return focused_; }

    // A whole number with a comma every three digits if `decimals` is 0; anything else has two decimals.
    static std::string FormatFloat(double value, int decimals);

    // What a cell shows: its text, or its number with the text behind it.
    static std::string ShownText(const CCell& cell);

    const FBAxis& Rows() const { return rows_; }
    const FBAxis& Columns() const { return columns_; }

protected:
    // What a window over this data does about a change; nothing without one.
    virtual void OnSizesChanged(bool /*redraw*/) {}  // rows or columns came, went or were resized
    virtual void OnCellsChanged() {}                 // cells anywhere changed and are to be repainted

private:
    bool ResizeRows(int n);
    int SetSize(FBAxis& axis, int index, int size);
    bool CellExists(int row, int col) const;

    FBAxis rows_;
    FBAxis columns_;
    std::vector<CRow> cells_;
    std::vector<std::unique_ptr<CStringArray>> lists_;
    CCellID focused_;
    int fixedRows_ = 0;
    int fixedColumns_ = 0;
    int defaultRowHeight_ = 18;
    int defaultColumnWidth_ = 80;
};
