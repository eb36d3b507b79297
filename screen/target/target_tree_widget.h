// One tree of the target dialog on the screen, with a check box before every node.
//
// The TargetTree behind it has the rules and outlives it; this only shows it and passes on what was touched:
// a check box by a click, the current node by Space. A click on a text selects its node and no more.
#pragma once

#include <QTreeWidget>

#include "screen/target/target_tree.h"

namespace jogeon {

class TargetTreeWidget : public QTreeWidget {
    Q_OBJECT

public:
    enum class Opened { All, PartlyChecked };  // the branches that stand open at first

    TargetTreeWidget(TargetTree& tree, Opened opened, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Fill();
    void Open(Opened opened);
    void ShowChecks();
    TargetTree::Node NodeOf(QTreeWidgetItem& item) const;

    TargetTree& tree_;
};

}  // namespace jogeon
