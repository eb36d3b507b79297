#include "screen/results/column_match.h"

#include <algorithm>
#include <map>

namespace jogeon {
namespace {

// Gives each optional column of the result the rightmost spare column of the grid, the last one first.
void PlaceValueColumns(const ResultSet& result, ColumnTables& tables, ResultView& view) {
    for (auto column = result.columns.rbegin(); column != result.columns.rend(); ++column) {
        ResultColumn& value = **column;
        if (tables.FindFixed(value.fid)) continue;
        tables.columns.push_back(&value);
        int place = view.GetColCount();
        while (place > 0 && !view.ColumnTag(place).empty()) --place;
        value.gridColumn = place;
        if (place > 0) view.SetColumnTag(place, value.fid);
    }
}

// Selects the fixed columns that the result has. One that comes out of the tables' order counts as absent.
void SelectFixedColumns(const ResultSet& result, ColumnTables& tables) {
    auto start =
        result.columns.begin() + std::min<std::ptrdiff_t>(tables.sequenceStart, std::ssize(result.columns));
    for (std::size_t i = 0; i < tables.fixedColumns.size(); ++i) {
        ResultColumn& column = *tables.columns[i];
        const bool found = std::find(start, result.columns.end(), &column) != result.columns.end();
        column.selected = found ? 1 : 0;
        if (found) ++start;
    }
}

void ShowColumns(ColumnTables& tables, ResultView& view) {
    std::map<int, const ResultColumn*> columnAt;
    for (const ResultColumn* column : tables.columns) columnAt[column->gridColumn] = column;
    for (int place = 1; place <= view.GetColCount(); ++place) {
        const auto found = columnAt.find(place);
        const bool shown = found != columnAt.end() && found->second->selected != 0;
        if (view.IsColHidden(place) == shown) view.HideCols(place, place, !shown);
        if (shown && !tables.FindFixed(found->second->fid)) view.SetColHeader(place, found->second->name);
    }
}

}  // namespace

void MatchColumns(const ResultSet& result, ColumnTables& tables, ResultView& view) {
    for (int column = 1; column <= view.GetColCount(); ++column) {
        if (!tables.FindFixed(view.ColumnTag(column))) view.SetColumnTag(column, "");
    }
    tables.CutToFixed();
    PlaceValueColumns(result, tables, view);
    SelectFixedColumns(result, tables);
    view.SetRowCount(static_cast<int>(result.rows.Rows()) + 1);
    ShowColumns(tables, view);
}

}  // namespace jogeon
