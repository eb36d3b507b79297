#include "tools/jogeond/close_names.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace jogeon {
namespace {

// Levenshtein's distance in bytes: a character of two or three bytes counts as much.
std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

}  // namespace

std::vector<std::string> CloseNames(const std::vector<std::string>& names, std::string_view wanted,
                                    std::size_t most) {
    std::vector<std::pair<std::size_t, std::string>> ranked;
    for (const std::string& name : names) {
        const bool contains = !wanted.empty() && name.find(wanted) != std::string::npos;
        const std::size_t distance = contains ? 0 : Distance(name, wanted);
        if (2 * distance <= std::max(name.size(), wanted.size())) ranked.emplace_back(distance, name);
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string> close;
    for (std::size_t i = 0; i < std::min(most, ranked.size()); ++i) close.push_back(ranked[i].second);
    return close;
}

}  // namespace jogeon
