#include "screen/saved/reorder_dialog.h"

#include <QShortcut>

#include "screen/saved/dialog_form_qt.h"
#include "screen/saved/reorder_dialog_places.h"

namespace jogeon {

using namespace reorder_dialog;

ReorderDialog::ReorderDialog(const std::vector<SavedSetName>& sets, QWidget* parent)
    : QDialog(parent), order_(sets.size()), list_(this) {
    SetUpDialog(*this, kId, "조건 검색", kWidth, kHeight);
    SetUpList(list_, {"사용자조건"});
    PlaceControl(list_, kPlaces, kSets);
    ListSets(list_, sets);
    AddMove(kTop, "최상위", "맨 위로 (Ctrl+Home)", Qt::Key_Home, &ReorderList::MoveToTop);
    AddMove(kUp, "▲", "위로 (Ctrl+↑)", Qt::Key_Up, &ReorderList::MoveUp);
    AddMove(kDown, "▼", "아래로 (Ctrl+↓)", Qt::Key_Down, &ReorderList::MoveDown);
    AddMove(kBottom, "최하위", "맨 아래로 (Ctrl+End)", Qt::Key_End, &ReorderList::MoveToBottom);
    QPushButton& ok = AddButton(*this, kPlaces, kDialogOk, "확인");
    ok.setDefault(true);
    connect(&ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(&AddButton(*this, kPlaces, kDialogCancel, "취소"), &QPushButton::clicked, this, &QDialog::reject);

    connect(&list_, &ReorderListWidget::dropped, this, [this](int row, int before) {
        ShowMove(row, order_.MoveBefore(static_cast<std::size_t>(row), static_cast<std::size_t>(before)));
    });
    connect(&list_, &QTreeWidget::itemSelectionChanged, this, &ReorderDialog::EnableMoves);
    if (!sets.empty()) list_.setCurrentItem(list_.topLevelItem(0));
    EnableMoves();
    list_.setFocus();
}

void ReorderDialog::AddMove(int id, const char* caption, const char* tooltip, int key, Move how) {
    QPushButton& button = AddButton(*this, kPlaces, id, caption);
    button.setToolTip(QString::fromUtf8(tooltip));
    connect(&button, &QPushButton::clicked, this, [this, how] { MoveSelected(how); });
    // Not the button's own, which would swallow the presses of a key that is held.
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(key)), this);
    connect(shortcut, &QShortcut::activated, this, [this, how] { MoveSelected(how); });
    moves_.push_back(&button);
}

void ReorderDialog::MoveSelected(Move how) {
    const auto selected = list_.selectedItems();
    if (selected.isEmpty()) return;
    const int row = list_.indexOfTopLevelItem(selected.front());
    ShowMove(row, (order_.*how)(static_cast<std::size_t>(row)));
}

// The moved row stays selected and in sight.
void ReorderDialog::ShowMove(int from, std::size_t to) {
    QTreeWidgetItem* item = list_.takeTopLevelItem(from);
    list_.insertTopLevelItem(static_cast<int>(to), item);
    list_.setCurrentItem(item);
    list_.scrollToItem(item);
}

void ReorderDialog::EnableMoves() {
    for (QPushButton* button : moves_) button->setEnabled(!list_.selectedItems().isEmpty());
}

}  // namespace jogeon
