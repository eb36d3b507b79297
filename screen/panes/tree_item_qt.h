// One node of the tree pane: its text and picture, and what a pick of it means.
//
// The catalogue owns the indicator; a saved set is shared with whoever has it open. Roots and groups have
// neither.
#pragma once

#include <QTreeWidgetItem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screen/condition/catalogue.h"
#include "screen/condition/saved_index_info.h"

namespace jogeon {

class TreeItem : public QTreeWidgetItem {
public:
    // `text` is CP949, `image` a position of catalogue.h.
    TreeItem(std::string_view text, int image);

    void SetText(std::string_view text);
    const std::string& Text() const { return text_; }
    int Image() const { return image_; }

    TreeItem* Parent() const { return static_cast<TreeItem*>(parent()); }
    std::vector<std::string> AncestorTexts() const;  // the root's first

    // A node that a pick means something for.
    bool IsLeafWithData() const { return childCount() == 0 && (index || saved); }

    const CIndexInfo* index = nullptr;
    std::shared_ptr<CSavedIndexInfo> saved;

private:
    std::string text_;
    int image_;
};

// The roots of the catalogue with all their nodes, for the caller to put into a tree.
QList<QTreeWidgetItem*> MakeCatalogueItems(const Catalogue& catalogue);

// All nodes of a tree of TreeItems, depth first.
std::vector<TreeItem*> AllItems(QTreeWidget& tree);

}  // namespace jogeon
