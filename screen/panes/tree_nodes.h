// How the catalogue's nodes become the nodes of the tree pane, and those the rows of its one sorted list.
//
// Knows no widget. Whatever the catalogue's files hold, levels and the lengths of texts stay bounded.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screen/condition/catalogue.h"

namespace jogeon {

inline constexpr std::size_t kDeepestLevel = 64;  // a catalogue of use has three levels
inline constexpr std::size_t kLongestText = 255;  // bytes of a node's or a row's text

struct LevelledNode {
    const CatalogueNode* node = nullptr;
    std::size_t level = 0;  // 0 for a root
};

// The nodes under `roots`, and they themselves, depth first. A node below the deepest level is put on that
// level.
std::vector<LevelledNode> WalkDepthFirst(const std::vector<CatalogueNode*>& roots);

// What a row of the list shows as its group: the ancestors' texts, the root's first, joined by ":"; `own` if
// there is none.
std::string GroupText(const std::vector<std::string>& ancestors, const std::string& own);

// The bytes by which rows are sorted: in the order 가나다, Latin letters in either case before them.
std::string SortKey(std::string_view text);

}  // namespace jogeon
