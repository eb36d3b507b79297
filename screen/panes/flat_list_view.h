// The leaves of the tree as one list, sorted 가나다: each with the groups it stands in.
//
// A row refers to its node of the tree: it goes, by Remove, before the node does.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <string>
#include <vector>

namespace jogeon {

class TreeItem;
class XlsWriter;

class FlatList : public QTreeWidget {
public:
    explicit FlatList(QWidget* parent);

    // One row for each leaf of `nodes` that a pick means something for.
    void Fill(const std::vector<TreeItem*>& nodes);

    // Puts a node's row before the first one that isn't less.
    QTreeWidgetItem* Insert(TreeItem& node);

    // Puts the row of a node with a new text where it belongs now; it stays selected if it was.
    void Update(TreeItem& node);

    // Takes the rows of a node's children away, or that of the node itself.
    void RemoveChildrenOf(const TreeItem& root);
    void Remove(const TreeItem& node);

    static TreeItem& NodeOf(const QTreeWidgetItem& row);

    std::vector<std::string> Texts() const;  // of column 0, in row order
    void WriteTo(XlsWriter& sheet) const;

    void RefreshColors();

private:
    void RemoveIf(const std::function<bool(const TreeItem&)>& unwanted);
};

}  // namespace jogeon
