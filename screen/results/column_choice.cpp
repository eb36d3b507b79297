#include "screen/results/column_choice.h"

#include <algorithm>
#include <set>
#include <utility>

namespace jogeon {

void ColumnChoice::TakeStored(GridLayout layout) {
    layout_ = std::move(layout);
    stored_ = layout_;
}

void ColumnChoice::SetWidth(int column, int width) {
    if (column < 1 || column > std::ssize(layout_)) return;
    layout_[static_cast<std::size_t>(column) - 1].width = std::clamp(width, kMinColumnWidth, kMaxColumnWidth);
}

bool ColumnChoice::CanBeAskedFor(const GridColumn& column) const {
    return tables_.fixedColumns.contains(column.fid);
}

std::vector<host::GridColumnChoice> ColumnChoice::Choices() const {
    GridLayout offered;
    std::copy_if(layout_.begin(), layout_.end(), std::back_inserter(offered),
                 [this](const GridColumn& column) { return CanBeAskedFor(column); });
    return ChoicesOf(offered);
}

void ColumnChoice::Choose(const std::vector<host::GridColumnChoice>& columns) {
    GridLayout chosen;
    GridLayout rest = layout_;
    for (const host::GridColumnChoice& choice : columns) {
        const auto column = std::find_if(rest.begin(), rest.end(), [&](const GridColumn& candidate) {
            return candidate.fid == choice.fid && CanBeAskedFor(candidate);
        });
        if (column == rest.end()) continue;
        column->width = std::clamp(choice.width, kMinColumnWidth, kMaxColumnWidth);
        column->hidden = !choice.shown && choice.fid != kNameColumnFid;
        chosen.push_back(*column);
        rest.erase(column);
    }
    std::stable_partition(rest.begin(), rest.end(),
                          [this](const GridColumn& column) { return CanBeAskedFor(column); });
    chosen.insert(chosen.end(), rest.begin(), rest.end());
    int number = 0;
    for (GridColumn& column : chosen) column.number = ++number;
    layout_ = std::move(chosen);
}

std::vector<host::GridColumnChoice> ChoicesOf(const GridLayout& layout) {
    std::vector<host::GridColumnChoice> choices;
    std::set<std::string> seen;  // a damaged file may have a column twice
    for (const GridColumn& column : layout) {
        if (column.fid.empty() || !seen.insert(column.fid).second) continue;
        choices.push_back({column.fid, column.header, column.width, !column.hidden});
    }
    return choices;
}

}  // namespace jogeon
