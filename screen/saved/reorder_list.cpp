#include "screen/saved/reorder_list.h"

#include <algorithm>
#include <numeric>

namespace jogeon {

ReorderList::ReorderList(std::size_t rows) : order_(rows) {
    std::iota(order_.begin(), order_.end(), std::size_t{0});
}

std::size_t ReorderList::MoveUp(std::size_t row) {
    return Move(row, row == 0 ? 0 : row - 1);
}

std::size_t ReorderList::MoveDown(std::size_t row) {
    return Move(row, std::min(row + 1, order_.size() - 1));
}

std::size_t ReorderList::MoveToTop(std::size_t row) {
    return Move(row, 0);
}

std::size_t ReorderList::MoveToBottom(std::size_t row) {
    return Move(row, order_.size() - 1);
}

// A row that is taken out above its new place moves that place up.
std::size_t ReorderList::MoveBefore(std::size_t row, std::size_t before) {
    return Move(row, row < before ? before - 1 : before);
}

std::size_t ReorderList::Move(std::size_t from, std::size_t to) {
    if (from == to) return to;
    const auto first = order_.begin();
    const auto at = [&](std::size_t row) { return first + static_cast<std::ptrdiff_t>(row); };
    if (from < to) {
        std::rotate(at(from), at(from + 1), at(to + 1));
    } else {
        std::rotate(at(to), at(from), at(from + 1));
    }
    changed_ = true;
    return to;
}

}  // namespace jogeon
