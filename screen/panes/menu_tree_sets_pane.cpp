// The user's condition sets in the tree, and their rows in the list, which follow every change.
#include "screen/files/data_paths.h"
#include "screen/panes/menu_tree_pane.h"
#include "screen/panes/tree_item_qt.h"
#include "screen/text/bytes.h"

namespace jogeon {

void CMenuTreeView::ShowSavedConditions() {
    host::LinkStore& links = *services_.links;
    SavedConditionFile file =
        LoadSavedConditions(SavedConditionPath(GetHomePath(links), GetUserId(links)), catalogue_);
    m_strVersion = std::move(file.version);
    ClearFind();
    form_.list.RemoveChildrenOf(*m_hUserRoot);
    qDeleteAll(m_hUserRoot->takeChildren());
    for (auto& set : file.sets) InsertSet(m_hUserRoot->childCount(), std::move(set));
    m_hUserRoot->setExpanded(true);
}

SavedSets CMenuTreeView::UserSets() const {
    SavedSets sets;
    for (int i = 0; i < m_hUserRoot->childCount(); ++i) sets.push_back(UserSet(i).saved);
    return sets;
}

void CMenuTreeView::AddSaved(std::shared_ptr<CSavedIndexInfo> set) {
    ClearFind();
    const int number = Atoi(set->m_strKey);
    int place = m_hUserRoot->childCount();
    while (place > 0 && Atoi(UserSet(place - 1).saved->m_strKey) > number) --place;
    InsertSet(place, std::move(set));
}

void CMenuTreeView::ReplaceSaved(std::shared_ptr<CSavedIndexInfo> set) {
    TreeItem* node = FindSaved(set->m_strKey);
    if (!node) return AddSaved(std::move(set));
    ClearFind();
    node->saved = std::move(set);
    Relabel(*node);
}

void CMenuTreeView::DeleteSaved(std::string_view key) {
    TreeItem* node = FindSaved(key);
    if (!node) return;
    ClearFind();
    form_.list.Remove(*node);
    delete node;
}

void CMenuTreeView::ShowNumbers(bool shown) {
    if ((m_nShowNumber != 0) == shown) return;
    m_nShowNumber = shown ? 1 : 0;
    ClearFind();
    for (int i = 0; i < m_hUserRoot->childCount(); ++i) Relabel(UserSet(i));
}

TreeItem& CMenuTreeView::UserSet(int place) const {
    return static_cast<TreeItem&>(*m_hUserRoot->child(place));
}

TreeItem* CMenuTreeView::FindSaved(std::string_view key) const {
    for (int i = 0; i < m_hUserRoot->childCount(); ++i) {
        if (UserSet(i).saved->m_strKey == key) return &UserSet(i);
    }
    return nullptr;
}

void CMenuTreeView::InsertSet(int place, std::shared_ptr<CSavedIndexInfo> set) {
    auto* node = new TreeItem(LabelOf(*set), kImageSavedSet);
    node->saved = std::move(set);
    m_hUserRoot->insertChild(place, node);
    if (m_bListFilled) form_.list.Insert(*node);
}

void CMenuTreeView::Relabel(TreeItem& node) {
    node.SetText(LabelOf(*node.saved));
    if (m_bListFilled) form_.list.Update(node);
}

std::string CMenuTreeView::LabelOf(const CSavedIndexInfo& set) const {
    return m_nShowNumber ? "[" + set.m_strKey + "]" + set.Name : set.Name;
}

}  // namespace jogeon
