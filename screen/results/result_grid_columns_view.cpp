// The result grid's columns: their layout, order and widths.
#include <QHeaderView>
#include <QScopedValueRollback>
#include <algorithm>

#include "screen/results/result_grid_view.h"
#include "screen/results/result_model_qt.h"
#include "screen/transactions/result_columns.h"

namespace jogeon {
namespace {

constexpr int kMinNameWidth = 64;  // pixels; a stock's name stays readable

}  // namespace

void ResultGrid::ApplyLayout(const GridLayout& layout) {
    const QScopedValueRollback applying(applying_, true);
    model_->SetLayout(layout);
    for (const GridColumn& column : layout) {
        const int at = column.number - 1;
        const int least = column.fid == kNameColumnFid ? kMinNameWidth : kMinColumnWidth;
        setColumnWidth(at, std::max(column.width, least));
        setColumnHidden(at, column.hidden);
    }
    SetPinnedColumn(model_->FindFid(kNameColumnFid));
}

const GridLayout& ResultGrid::Layout() const {
    return model_->Layout();
}

bool ResultGrid::HasColumn(int column) const {
    return column >= 1 && column <= GetColCount();
}

int ResultGrid::GetColCount() const {
    return model_->columnCount();
}

bool ResultGrid::IsColHidden(int column) const {
    return !HasColumn(column) || isColumnHidden(column - 1);
}

void ResultGrid::HideCols(int first, int last, bool hide) {
    for (int column = std::max(first, 1); column <= std::min(last, GetColCount()); ++column) {
        setColumnHidden(column - 1, hide);
        model_->SetHidden(column - 1, hide);
    }
}

void ResultGrid::SetColHeader(int column, const std::string& text) {
    if (HasColumn(column)) model_->SetHeader(column - 1, text);
}

std::string ResultGrid::ColumnTag(int column) const {
    return HasColumn(column) ? Layout()[static_cast<std::size_t>(column) - 1].fid : std::string();
}

void ResultGrid::SetColumnTag(int column, const std::string& tag) {
    if (HasColumn(column)) model_->SetFid(column - 1, tag);
}

int ResultGrid::FindColumnByTag(const std::string& tag) const {
    return model_->FindFid(tag) + 1;
}

void ResultGrid::OnColumnResized(int section, int, int newWidth) {
    if (applying_ || newWidth == 0) return;  // width 0 is how Qt tells of hiding
    if (section + 1 == FindColumnByTag(std::string(kNameColumnFid)) && newWidth < kMinNameWidth) {
        setColumnWidth(section, kMinNameWidth);
        return;
    }
    model_->SetWidth(section, newWidth);
    emit ColumnSized(section + 1, newWidth);
}

}  // namespace jogeon
