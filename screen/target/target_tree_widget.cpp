#include "screen/target/target_tree_widget.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include "screen/palette/colors_qt.h"
#include "screen/palette/edges_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

using Branch = TargetTree::Branch;

enum Column { kText, kCount };

constexpr int kIndentation = 16;
constexpr int kRowSpace = 6;  // pixels that a row is higher than its text

QTreeWidgetItem* MakeItem(const std::string& text, int height) {
    auto* item = new QTreeWidgetItem({ToQString(text)});
    item->setSizeHint(kText, QSize(0, height));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setTextAlignment(kCount, Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

void ShowCheck(QTreeWidgetItem& item, bool checked) {
    item.setCheckState(kText, checked ? Qt::Checked : Qt::Unchecked);
}

// "3/25": how many of a branch are checked, which its own box can't tell.
QString CountText(const Branch& branch) {
    if (branch.leaves.empty()) return {};
    return QString("%1/%2").arg(branch.CheckedCodes().size()).arg(branch.leaves.size());
}

}  // namespace

TargetTreeWidget::TargetTreeWidget(TargetTree& tree, Opened opened, QWidget* parent)
    : QTreeWidget(parent), tree_(tree) {
    setColumnCount(2);
    setHeaderHidden(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(kText, QHeaderView::Stretch);
    header()->setSectionResizeMode(kCount, QHeaderView::ResizeToContents);
    setIndentation(kIndentation);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    QPalette colors = EdgePalette();
    colors.setColor(QPalette::Highlight, ToQColor(Color::GridSelectedRow));
    colors.setColor(QPalette::HighlightedText, ToQColor(Color::ControlText));
    setPalette(colors);
    Fill();
    ShowChecks();
    Open(opened);
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
        tree_.Toggle(NodeOf(*item));
        ShowChecks();
    });
}

void TargetTreeWidget::Fill() {
    const int height = fontMetrics().height() + kRowSpace;
    QFont bold = font();
    bold.setBold(true);
    for (const Branch& branch : tree_.Branches()) {
        QTreeWidgetItem* item = MakeItem(branch.text, height);
        item->setFont(kText, bold);
        for (const TargetTree::Leaf& leaf : branch.leaves) item->addChild(MakeItem(leaf.text, height));
        item->setDisabled(branch.leaves.empty() && branch.kind != TargetTree::Kind::Whole);
        addTopLevelItem(item);
    }
}

// The keys begin at the first node that is checked.
void TargetTreeWidget::Open(Opened opened) {
    QTreeWidgetItem* current = nullptr;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const Branch& branch = tree_.Branches()[static_cast<std::size_t>(i)];
        QTreeWidgetItem& item = *topLevelItem(i);
        const TargetTree::Leaf* checked = branch.FirstChecked();
        item.setExpanded(opened == Opened::All || (checked && !branch.checked));
        if (current) continue;
        if (branch.checked) {
            current = &item;
        } else if (checked) {
            current = item.child(static_cast<int>(checked - branch.leaves.data()));
        }
    }
    setCurrentItem(current ? current : topLevelItem(0));
}

void TargetTreeWidget::showEvent(QShowEvent* event) {
    QTreeWidget::showEvent(event);
    if (currentItem()) scrollToItem(currentItem());
}

void TargetTreeWidget::ShowChecks() {
    const QSignalBlocker quiet(this);
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const Branch& branch = tree_.Branches()[static_cast<std::size_t>(i)];
        QTreeWidgetItem& item = *topLevelItem(i);
        ShowCheck(item, branch.checked);
        item.setText(kCount, CountText(branch));
        for (int j = 0; j < item.childCount(); ++j) {
            ShowCheck(*item.child(j), branch.leaves[static_cast<std::size_t>(j)].checked);
        }
    }
}

TargetTree::Node TargetTreeWidget::NodeOf(QTreeWidgetItem& item) const {
    QTreeWidgetItem* parent = item.parent();
    if (!parent) return {static_cast<std::size_t>(indexOfTopLevelItem(&item))};
    return {static_cast<std::size_t>(indexOfTopLevelItem(parent)),
            static_cast<std::size_t>(parent->indexOfChild(&item))};
}

}  // namespace jogeon
