#include "screen/results/row_table.h"

namespace jogeon {

void RowTable::AppendRow(std::span<const std::string_view> fields) {
    for (std::size_t column = 0; column < columns_; ++column) {
        if (column < fields.size()) text_.append(fields[column]);
        ends_.push_back(static_cast<std::uint32_t>(text_.size()));
    }
}

std::string_view RowTable::Cell(std::size_t row, std::size_t column) const {
    if (column >= columns_ || row >= Rows()) return {};
    const std::size_t cell = row * columns_ + column;
    const std::size_t begin = cell == 0 ? 0 : ends_[cell - 1];
    return std::string_view(text_).substr(begin, ends_[cell] - begin);
}

}  // namespace jogeon
