#include "screen/panes/tree_item_qt.h"

#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <algorithm>

#include "screen/panes/tree_icons_qt.h"
#include "screen/panes/tree_nodes.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {

TreeItem::TreeItem(std::string_view text, int image) : image_(image) {
    SetText(text);
    setIcon(0, TreeIcon(image));
}

void TreeItem::SetText(std::string_view text) {
    text_ = CutToBytes(text, kLongestText);
    setText(0, ToQString(text_));
    setToolTip(0, this->text(0));
}

std::vector<std::string> TreeItem::AncestorTexts() const {
    std::vector<std::string> texts;
    for (const TreeItem* node = Parent(); node; node = node->Parent()) texts.push_back(node->Text());
    std::reverse(texts.begin(), texts.end());
    return texts;
}

QList<QTreeWidgetItem*> MakeCatalogueItems(const Catalogue& catalogue) {
    QList<QTreeWidgetItem*> roots;
    std::vector<TreeItem*> path;  // the last node of each level so far
    for (const LevelledNode& walked : WalkDepthFirst(catalogue.Roots())) {
        auto* item = new TreeItem(walked.node->text, walked.node->image);
        item->index = walked.node->data;
        path.resize(walked.level);
        if (path.empty()) {
            roots.append(item);
        } else {
            path.back()->addChild(item);
        }
        path.push_back(item);
    }
    return roots;
}

std::vector<TreeItem*> AllItems(QTreeWidget& tree) {
    std::vector<TreeItem*> items;
    for (QTreeWidgetItemIterator at(&tree); *at; ++at) {
        items.push_back(static_cast<TreeItem*>(*at));
    }
    return items;
}

}  // namespace jogeon
