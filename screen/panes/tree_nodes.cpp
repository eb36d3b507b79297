#include "screen/panes/tree_nodes.h"

#include <algorithm>

#include "screen/panes/tree_find.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {

std::vector<LevelledNode> WalkDepthFirst(const std::vector<CatalogueNode*>& roots) {
    std::vector<LevelledNode> walked;
    std::vector<LevelledNode> pending;  // the next one last
    const auto push = [&](const std::vector<CatalogueNode*>& nodes, std::size_t level) {
        for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) {
            pending.push_back({*node, std::min(level, kDeepestLevel)});
        }
    };
    push(roots, 0);
    while (!pending.empty()) {
        const LevelledNode next = pending.back();
        pending.pop_back();
        walked.push_back(next);
        push(next.node->children, next.level + 1);
    }
    return walked;
}

std::string GroupText(const std::vector<std::string>& ancestors, const std::string& own) {
    const std::string group = ancestors.empty() ? own : Join(ancestors, ":");
    return std::string(CutToBytes(group, kLongestText));
}

// CP949 holds the syllables in two blocks; Unicode holds them in one, in their order, and UTF-8 keeps it.
std::string SortKey(std::string_view text) {
    return ToUtf8(FoldCase(text));
}

}  // namespace jogeon
