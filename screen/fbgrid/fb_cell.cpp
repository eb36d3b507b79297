#include "screen/fbgrid/fb_cell.h"

#include <algorithm>

#include "screen/fbgrid/fb_index.h"

namespace {

// What a wrong index gets: a cell that belongs to no grid, empty again each time.
CCell& NoCell() {
    static CCell cell;
    cell = CCell();
    return cell;
}

}  // namespace

void CRow::Resize(int columns) {
    const auto kept = static_cast<int>(cells_.size());
    cells_.resize(static_cast<std::size_t>(std::max(columns, 0)));
    for (int col = kept; col < columns; ++col)
        cells_[static_cast<std::size_t>(col)] = std::make_unique<CCell>();
}

CCell& CRow::operator[](int col) {
    return jogeon::IndexExists(col, Count()) ? *cells_[static_cast<std::size_t>(col)] : NoCell();
}

const CCell& CRow::operator[](int col) const {
    return jogeon::IndexExists(col, Count()) ? *cells_[static_cast<std::size_t>(col)] : NoCell();
}
