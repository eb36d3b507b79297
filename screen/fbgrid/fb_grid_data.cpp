#include "screen/fbgrid/fb_grid_data.h"

#include <algorithm>
#include <climits>

#include "screen/fbgrid/fb_index.h"

using jogeon::IndexExists;

namespace {

// What a wrong row index gets: a row that belongs to no grid and has no cells.
CRow& NoRow() {
    static CRow row;
    row.Resize(0);
    return row;
}

int Pixels(std::int64_t sum) {
    return static_cast<int>(std::min<std::int64_t>(sum, INT_MAX));
}

void ClearCell(CCell& cell) {
    cell.text.clear();
    cell.image = -1;
    cell.listIndex = -1;
    cell.value = 0;
    const bool onlyCheckBox = cell.state == CCell::kCheck;
    cell.check = onlyCheckBox ? CCell::kDisabled : CCell::kOff;
    if (!onlyCheckBox) cell.state = 0;
}

}  // namespace

bool FBGridData::ResizeRows(int n) {
    if (n < 0 || n == GetRowCnt()) return false;
    if (n == 0) fixedRows_ = 0;
    rows_.Resize(n, defaultRowHeight_);
    const auto kept = static_cast<int>(cells_.size());
    cells_.resize(static_cast<std::size_t>(n));
    for (int row = kept; row < n; ++row) cells_[static_cast<std::size_t>(row)].Resize(GetColCnt());
    return true;
}

void FBGridData::SetRowCnt(int n) {
    if (ResizeRows(n)) OnSizesChanged(true);
}

void FBGridData::SetRowCnt_NoRedraw(int n) {
    if (ResizeRows(n)) OnSizesChanged(false);
}

void FBGridData::SetColCnt(int n) {
    if (n < 0 || n == GetColCnt()) return;
    if (n == 0) fixedColumns_ = 0;
    columns_.Resize(n, defaultColumnWidth_);
    for (CRow& row : cells_) row.Resize(n);
    OnSizesChanged(true);
}

int FBGridData::SetRowHeight(int row, int height) {
    return SetSize(rows_, row, height);
}

int FBGridData::SetColWidth(int col, int width) {
    return SetSize(columns_, col, width);
}

int FBGridData::SetSize(FBAxis& axis, int index, int size) {
    if (index < 0 || index >= axis.Count()) return 0;
    const int old = axis.Size(index);
    axis.SetSize(index, size);
    if (axis.Size(index) != old) OnSizesChanged(true);
    return 1;
}

int FBGridData::GetVirtualWidth() const {
    return Pixels(columns_.Total());
}

int FBGridData::GetVirtualHeight() const {
    return Pixels(rows_.Total());
}

int FBGridData::GetFixedColWidth() const {
    return Pixels(columns_.Offset(fixedColumns_));
}

int FBGridData::GetFixedRowHeight() const {
    return Pixels(rows_.Offset(fixedRows_));
}

void FBGridData::AddColumn(const std::string& title, int width) {
    SetRowCnt(1);
    fixedRows_ = 1;
    const int col = GetColCnt();
    SetColCnt(col + 1);
    SetColWidth(col, width);
    CCell& header = GetCell(0, col);
    header.text = title;
    header.format = CCell::kCentre;
}

// The cells of each row behind `row` move up by one, while the heights stay where they are and the last
// height goes.
void FBGridData::DeleteRow(int row) {
    if (!IndexExists(row, GetRowCnt())) return;
    const auto deleted = cells_.begin() + row;
    std::rotate(deleted, deleted + 1, cells_.end());
    SetRowCnt(GetRowCnt() - 1);
}

void FBGridData::DeleteAll() {
    if (GetRowCnt() <= 1) return;
    SetRowCnt(1);
    ClearComboList();
}

bool FBGridData::IsValid(int row, int col) const {
    return row >= 0 && row < GetRowCnt() && col >= 0 && col < GetColCnt();
}

bool FBGridData::IsNonHeaderCell(int row, int /*col*/) const {
    return row >= 0 && row < fixedRows_;
}

bool FBGridData::CellExists(int row, int col) const {
    return IndexExists(row, GetRowCnt()) && IndexExists(col, GetColCnt());
}

CRow& FBGridData::operator[](int row) {
    return IndexExists(row, GetRowCnt()) ? cells_[static_cast<std::size_t>(row)] : NoRow();
}

const CRow& FBGridData::operator[](int row) const {
    return IndexExists(row, GetRowCnt()) ? cells_[static_cast<std::size_t>(row)] : NoRow();
}

CCell& FBGridData::GetCell(int row, int col) {
    return (*this)[row][col];
}

const CCell& FBGridData::GetCell(int row, int col) const {
    return (*this)[row][col];
}

void FBGridData::SetCell(int row, int col, const CCell& cell) {
    if (CellExists(row, col)) GetCell(row, col) = cell;
}

void FBGridData::SetCellValue(int row, int col, double value) {
    CCell& cell = GetCell(row, col);
    cell.state |= CCell::kNumeric;
    cell.format = CCell::kRight;
    cell.value = value;
}

void FBGridData::SwapCellInfo(int row1, int col1, int row2, int col2) {
    if (CellExists(row1, col1) && CellExists(row2, col2)) std::swap(GetCell(row1, col1), GetCell(row2, col2));
}

void FBGridData::InitNonFixedCell() {
    for (int row = std::max(fixedRows_, 0); row < GetRowCnt(); ++row) {
        for (int col = std::max(fixedColumns_, 0); col < GetColCnt(); ++col) {
            CCell& cell = GetCell(row, col);
            cell.text.clear();
            cell.value = 0;
            cell.image = -1;
            cell.check = CCell::kOff;
            cell.state = 0;
        }
    }
    OnCellsChanged();
}

void FBGridData::ClearRow(int row, bool redraw) {
    if (!IndexExists(row, GetRowCnt())) return;
    for (int col = 0; col < GetColCnt(); ++col) ClearCell(GetCell(row, col));
    if (redraw) OnCellsChanged();
}

void FBGridData::MoveRowData(int fromRow, int toRow, bool redraw) {
    if (!IndexExists(fromRow, GetRowCnt()) || !IndexExists(toRow, GetRowCnt())) return;
    for (int col = 0; col < GetColCnt(); ++col) GetCell(toRow, col) = GetCell(fromRow, col);
    ClearRow(fromRow, redraw);
}

void FBGridData::AddDropDownItem(std::unique_ptr<CStringArray> list) {
    lists_.push_back(std::move(list));
}

void FBGridData::ClearComboList() {
    lists_.clear();
}

const CStringArray* FBGridData::DropDownItems(int index) const {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < lists_.size();
    return exists ? lists_[static_cast<std::size_t>(index)].get() : nullptr;
}
