// Moving entries of a list, as the windows' arrows do, and the mouse.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace jogeon::terminal {

// Puts the entries of `moved` one place up (`by` below 0) or down among the others, which keep their order;
// as a block they stop at the end.
inline void MoveWithin(std::vector<std::string>& entries, const std::vector<std::string>& moved, int by) {
    const auto isMoved = [&](const std::string& entry) {
        return std::find(moved.begin(), moved.end(), entry) != moved.end();
    };
    if (by > 0) std::reverse(entries.begin(), entries.end());
    for (std::size_t i = 1; i < entries.size(); ++i)
        if (isMoved(entries[i]) && !isMoved(entries[i - 1])) std::swap(entries[i], entries[i - 1]);
    if (by > 0) std::reverse(entries.begin(), entries.end());
}

// Puts the entry `moved`, if there is one, before the one that is at `place` now; the list's size is its end.
inline void MoveTo(std::vector<std::string>& entries, const std::string& moved, int place) {
    const auto from = std::find(entries.begin(), entries.end(), moved);
    const auto to = entries.begin() + place;
    if (from < to)
        std::rotate(from, from + 1, to);
    else if (from != entries.end())
        std::rotate(to, from, from + 1);
}

}  // namespace jogeon::terminal
