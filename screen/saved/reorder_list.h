// A list whose rows are being put in a new order: the moves of the reorder dialog, without its display.
//
// Rows count from 0. Each move gives back where the moved row stands then.
#pragma once

#include <cstddef>
#include <vector>

namespace jogeon {

class ReorderList {
public:
    explicit ReorderList(std::size_t rows);

    // The first place of each row, in the present order.
    const std::vector<std::size_t>& Order() const { return order_; }

    // Whether any row has been moved, though it may have been moved back.
    bool Changed() const { return changed_; }

    // `row` is a row of the list. A move beyond an end does nothing.
    std::size_t MoveUp(std::size_t row);
    std::size_t MoveDown(std::size_t row);
    std::size_t MoveToTop(std::size_t row);
    std::size_t MoveToBottom(std::size_t row);

    // Puts `row` before the row `before`.
    std::size_t MoveBefore(std::size_t row, std::size_t before);

private:
    std::size_t Move(std::size_t from, std::size_t to);

    std::vector<std::size_t> order_;
    bool changed_ = false;
};

}  // namespace jogeon
