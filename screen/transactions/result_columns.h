// The columns a search can bring: which exist, which the user has chosen, and where the grid shows them.
//
// Columns come from a system file; the grid's layout says which of them are visible. Fixed columns are asked
// for by name; optional ones come unasked, as the values of conditions that show theirs.
#pragma once

#include <filesystem>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

// The column of the stock itself, which no request names and every result has.
inline constexpr std::string_view kNameColumnFid = "9001";

struct ResultColumn {
    std::string name;  // header text
    std::string fid;
    int width = 0;       // bytes of the column in a reply row
    int gridColumn = 0;  // column of the grid, from 1; 0 while it has no place
    int selected = 0;    // 1: asked for and shown
};

// One column of the result grid as its layout tells it.
struct GridColumnLayout {
    int number = 0;   // from 1
    std::string fid;  // empty for a spare column
    bool hidden = false;
};

// `columns` begins with the fixed columns in file order; behind them stand those optional columns of the
// result on show, which the result owns. Can be moved, not copied.
struct ColumnTables {
    std::map<std::string, ResultColumn, std::less<>> fixedColumns;
    std::map<std::string, ResultColumn, std::less<>> optionalColumns;
    std::vector<ResultColumn*> columns;
    int sequenceStart = 1;  // 0 when the name column is among the selected ones, else 1

    ColumnTables() = default;
    ColumnTables(ColumnTables&&) = default;
    ColumnTables& operator=(ColumnTables&&) = default;

    ResultColumn* FindFixed(std::string_view fid);
    const ResultColumn* FindOptional(std::string_view fid) const;

    // Drops the optional columns from `columns`, before the result that owns them goes or another is shown.
    void CutToFixed();

    // Sets `sequenceStart` by what is selected now.
    void UpdateSequenceStart();
};

// Reads the column file; a missing one gives empty tables. A value without a width gives width 0.
ColumnTables LoadColumnTable(const std::filesystem::path& file);

// Selects and places the fixed columns as the grid has them; a fixed column without a visible place is not
// selected. Sets `sequenceStart`.
void ApplyGridLayout(ColumnTables& tables, std::span<const GridColumnLayout> grid);

// The FIDs that a search asks for, in column order, the name column left out: every selected fixed column,
// from entry `first` of `columns` on.
std::vector<std::string> SelectedFids(const ColumnTables& tables, std::size_t first = 0);

}  // namespace jogeon
