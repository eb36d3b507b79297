// The find of the tree pane: what it looks through, and how it shows a hit.
#include "screen/panes/menu_tree_pane.h"
#include "screen/panes/tree_item_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr qsizetype kHintedHits = 20;  // lines of the counter's tooltip

}  // namespace

void CMenuTreeView::OnFind() {
    if (!find_.Trigger(services_.clock->TickCount())) return;
    const std::string typed = form_.findText.text().toStdString();
    const std::optional<std::string> text = TryToCp949(typed);
    // What CP949 has no form for is in none of the texts.
    find_.Search(text.value_or(typed), text ? ShownTexts() : std::vector<std::string>());
    ShowHit();
}

void CMenuTreeView::ClearFind() {
    find_.Clear();
    ShowCounter();
}

void CMenuTreeView::ShowHit() {
    ShowCounter();
    if (!find_.HasHit()) return;
    const std::size_t item = find_.Item();
    QTreeWidget& view = form_.Shown();
    QTreeWidgetItem* hit =
        form_.ListShown() ? view.topLevelItem(static_cast<int>(item)) : AllItems(view).at(item);
    for (QTreeWidgetItem* above = hit->parent(); above; above = above->parent()) above->setExpanded(true);
    view.setFocus();
    view.setCurrentItem(hit);
    view.scrollToItem(hit);
}

void CMenuTreeView::ShowCounter() {
    QStringList hint;
    for (const std::string& text : find_.FoundTexts()) {
        hint.append(hint.size() < kHintedHits ? ToQString(text) : "…");
        if (hint.size() > kHintedHits) break;
    }
    form_.ShowCounter(QString::fromStdString(find_.CounterText()), hint.join('\n'), find_.HasHit());
}

std::vector<std::string> CMenuTreeView::ShownTexts() {
    if (form_.ListShown()) return form_.list.Texts();
    std::vector<std::string> texts;
    for (const TreeItem* node : AllItems(form_.tree)) texts.push_back(node->Text());
    return texts;
}

}  // namespace jogeon
