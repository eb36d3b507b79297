#include "screen/panes/flat_list_view.h"

#include <QHeaderView>
#include <algorithm>
#include <memory>

#include "screen/files/xls_writer.h"
#include "screen/palette/header_style_qt.h"
#include "screen/panes/tree_item_qt.h"
#include "screen/panes/tree_nodes.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

enum Column { kText, kGroup };
constexpr int kTextWidth = 100;  // pixels
constexpr int kGroupWidth = 150;

struct Row : QTreeWidgetItem {
    explicit Row(TreeItem& shown)
        : node(shown), group(GroupText(shown.AncestorTexts(), shown.Text())), key(SortKey(shown.Text())) {
        setText(kText, shown.text(0));
        setText(kGroup, ToQString(group));
        setIcon(kText, shown.icon(0));
        for (const int column : {kText, kGroup}) setToolTip(column, text(column));
    }

    TreeItem& node;
    std::string group;
    std::string key;
};

const Row& RowAt(const QTreeWidget& list, int row) {
    return *static_cast<const Row*>(list.topLevelItem(row));
}

}  // namespace

FlatList::FlatList(QWidget* parent) : QTreeWidget(parent) {
    setHeaderLabels({"지표", "그룹"});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setColumnWidth(kText, kTextWidth);
    setColumnWidth(kGroup, kGroupWidth);
    RefreshColors();
}

void FlatList::Fill(const std::vector<TreeItem*>& nodes) {
    clear();
    std::vector<std::unique_ptr<Row>> rows;
    for (TreeItem* node : nodes) {
        if (node->IsLeafWithData()) rows.push_back(std::make_unique<Row>(*node));
    }
    std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a->key < b->key; });
    QList<QTreeWidgetItem*> items;
    for (auto& row : rows) items.append(row.release());
    addTopLevelItems(items);
}

QTreeWidgetItem* FlatList::Insert(TreeItem& node) {
    auto* row = new Row(node);
    int place = 0;
    while (place < topLevelItemCount() && RowAt(*this, place).key < row->key) ++place;
    insertTopLevelItem(place, row);
    return row;
}

void FlatList::Update(TreeItem& node) {
    const bool selected = currentItem() && currentItem()->isSelected() && &NodeOf(*currentItem()) == &node;
    Remove(node);
    QTreeWidgetItem* row = Insert(node);
    if (selected) setCurrentItem(row);
}

void FlatList::RemoveChildrenOf(const TreeItem& root) {
    RemoveIf([&root](const TreeItem& node) { return node.Parent() == &root; });
}

void FlatList::Remove(const TreeItem& node) {
    RemoveIf([&node](const TreeItem& other) { return &other == &node; });
}

void FlatList::RemoveIf(const std::function<bool(const TreeItem&)>& unwanted) {
    for (int row = topLevelItemCount() - 1; row >= 0; --row) {
        if (unwanted(RowAt(*this, row).node)) delete takeTopLevelItem(row);
    }
}

TreeItem& FlatList::NodeOf(const QTreeWidgetItem& row) {
    return static_cast<const Row&>(row).node;
}

std::vector<std::string> FlatList::Texts() const {
    std::vector<std::string> texts;
    for (int row = 0; row < topLevelItemCount(); ++row) texts.push_back(RowAt(*this, row).node.Text());
    return texts;
}

void FlatList::WriteTo(XlsWriter& sheet) const {
    for (int row = 0; row < topLevelItemCount(); ++row) {
        sheet.WriteLabel(row, kText, RowAt(*this, row).node.Text());
        sheet.WriteLabel(row, kGroup, RowAt(*this, row).group);
    }
}

void FlatList::RefreshColors() {
    header()->setStyleSheet(HeaderStyle());
}

}  // namespace jogeon
