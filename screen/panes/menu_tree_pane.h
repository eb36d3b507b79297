// The left pane: the indicators and the condition sets of the user and of the firm, as a tree and as a sorted
// list, with a find over both.
//
// It owns the indicator catalogue, which it loads at its first update, and the sets of the tree. Picks go to
// the screen.
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screen/condition/catalogue.h"
#include "screen/host/services.h"
#include "screen/panes/tree_find.h"
#include "screen/panes/tree_form_widget.h"
#include "screen/panes/tree_picks.h"
#include "screen/saved/saved_condition_file.h"
#include "screen/saved/saved_tree.h"

namespace jogeon {

class TreeItem;

class CMenuTreeView : public QWidget, public SavedTree {
    Q_OBJECT

public:
    // Uses the host's installed services.
    explicit CMenuTreeView(QWidget* parent);
    ~CMenuTreeView() override;

    // Where picks go, once, before the first update.
    void LinkScreen(TreePicks& screen) { screen_ = &screen; }

    // SavedTree
    const Catalogue& Indicators() const override { return catalogue_; }
    SavedSets UserSets() const override;
    void ShowSavedConditions() override;
    void AddSaved(std::shared_ptr<CSavedIndexInfo> set) override;
    void ReplaceSaved(std::shared_ptr<CSavedIndexInfo> set) override;
    void DeleteSaved(std::string_view key) override;
    void ClearSelection() override;

    // The version of the file that ShowSavedConditions has read.
    const std::string& Version() const { return m_strVersion; }

    // Whether the user's sets show their numbers before their names.
    void ShowNumbers(bool shown);

    void RefreshColors();  // after a change of the colour table

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void WireControls();
    void WireKeys();
    TreeItem* AddRoot(const char* text, int image);
    void LoadCatalogue();

    // The node that an item of the tree is, or that a row of the list stands for.
    TreeItem& NodeOf(QTreeWidgetItem& shown) const;
    void OnClick(const TreeItem& node);
    void OnDoubleClick(const TreeItem& node);
    void OnPickIndex(const CIndexInfo& info);
    void OnPickSaved(std::shared_ptr<CSavedIndexInfo> saved);

    void OnTab(int tab);
    void FillList();
    void OnSave();

    void OnFind();
    void ClearFind();
    void ShowHit();
    void ShowCounter();
    std::vector<std::string> ShownTexts();

    TreeItem& UserSet(int place) const;
    TreeItem* FindSaved(std::string_view key) const;  // the user's set with this number; null without one
    void InsertSet(int place, std::shared_ptr<CSavedIndexInfo> set);
    void Relabel(TreeItem& node);
    std::string LabelOf(const CSavedIndexInfo& set) const;

    host::Services services_;
    TreePicks* screen_ = nullptr;
    Catalogue catalogue_;
    TreeForm form_;
    TreeFind find_;         // over what the shown tab shows
    TreeItem* m_hUserRoot;  // of the tree
    TreeItem* m_hVendorRoot;
    bool m_bListFilled = false;  // from its first showing on
    int m_nShowNumber = 0;       // 1: the user's sets show their numbers
    std::string m_strVersion;
};

}  // namespace jogeon
