// The left pane: the condition sets of the firm and of the user, to open by a double click.
//
// It owns the indicator catalogue, which it loads at its first update.
#pragma once

#include <QTreeWidget>

#include "screen/condition/catalogue.h"
#include "screen/host/services.h"
#include "screen/panes/tree_picks.h"
#include "screen/saved/saved_condition_file.h"

namespace jogeon {

class CMenuTreeView : public QWidget {
    Q_OBJECT

public:
    // Uses the host's installed services.
    explicit CMenuTreeView(QWidget* parent);
    ~CMenuTreeView() override;

    // Where picks go, once, before the first update.
    void LinkScreen(TreePicks& screen) { screen_ = &screen; }

    // Reads the user's sets from their file and shows them.
    void ShowSavedConditions();

    // Whether the user's sets show their numbers before their names.
    void ShowNumbers(bool shown);

    void ClearSelection();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void LoadCatalogue();
    void FillRoot(QTreeWidgetItem& root, const SavedSets& sets);
    void LabelUserSets();
    void OnDoubleClick(QTreeWidgetItem* item);

    host::Services services_;
    TreePicks* screen_ = nullptr;
    Catalogue catalogue_;
    SavedSets userSets_;
    SavedSets vendorSets_;
    bool numbersShown_ = false;
    QTreeWidget tree_;
    QTreeWidgetItem* userRoot_;  // of the tree
    QTreeWidgetItem* vendorRoot_;
};

}  // namespace jogeon
