// The rows of one result: text cells in one block of bytes, so that thousands of rows cost two allocations.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

class RowTable {
public:
    explicit RowTable(std::size_t columns = 0) : columns_(columns) {}

    std::size_t Columns() const { return columns_; }
    std::size_t Rows() const { return columns_ == 0 ? 0 : ends_.size() / columns_; }

    // Appends a row. Fields beyond Columns() are left out, missing ones are empty.
    void AppendRow(std::span<const std::string_view> fields);

    // The cell's text, empty outside the table. Valid until the next AppendRow.
    std::string_view Cell(std::size_t row, std::size_t column) const;

private:
    std::size_t columns_;
    std::string text_;                 // all cells, row by row
    std::vector<std::uint32_t> ends_;  // where each cell ends in text_
};

}  // namespace jogeon
