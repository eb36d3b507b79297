#include "screen/fbgrid/fb_grid_inplace_widget.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QInputMethod>
#include <QPointer>
#include <utility>

#include "screen/fbgrid/fb_grid_parts_widget.h"
#include "screen/fbgrid/fb_inplace_edit.h"
#include "screen/fbgrid/fb_inplace_list_widget.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {

void FBGridInPlace::OpenEdit(CCellID cell) {
    if (!End(true) || !parts_.Exists(cell)) return;
    auto* edit = new FBInPlaceEdit(grid_.viewport(), grid_.GetCell(cell.row, cell.col));
    QObject::connect(edit, &FBInPlaceEdit::Ended, &grid_, [this] { End(true); });
    Show(edit, cell, [edit](CCell& target) { edit->StoreInto(target); });
}

void FBGridInPlace::OpenList(CCellID cell) {
    if (!End(true) || !parts_.Exists(cell)) return;
    const CCell& shown = grid_.GetCell(cell.row, cell.col);
    const CStringArray* items = grid_.DropDownItems(shown.listIndex);
    if (!items) return;
    auto* list = new FBInPlaceList(grid_.viewport(), *items, shown);
    ConnectList(*list);
    Show(list, cell, [list](CCell& target) { list->StoreSelection(target); });
}

void FBGridInPlace::ConnectList(FBInPlaceList& list) {
    QObject::connect(&list, &QComboBox::activated, &grid_,
                     [this, &list](int index) { OnSelection(list, index); });
    QObject::connect(&list, &QComboBox::currentIndexChanged, &grid_, [this, &list](int index) {
        const auto held = open_.control;  // the list is in the midst of this, whatever becomes of the grid
        OnSelection(list, index);
        parts_.Notify(FBGridNotify::kChildCommand);
    });
    QObject::connect(&list, &QComboBox::editTextChanged, &grid_, [this](const QString& text) {
        Write([&](CCell& cell) { cell.text = FromQString(text); });
    });
    QObject::connect(&list, &FBInPlaceList::Ended, &grid_, [this] { End(true); });
    QObject::connect(&list, &FBInPlaceList::KeyPassed, &grid_, [this](int key) {
        if (End(true)) parts_.PressKey(key);
    });
}

void FBGridInPlace::OnSelection(const QComboBox& list, int index) {
    if (index < 0) return;
    Write([&](CCell& cell) {
        cell.check = static_cast<std::uint32_t>(index);
        cell.text = FromQString(list.itemText(index));
    });
}

void FBGridInPlace::Show(QWidget* control, CCellID cell, std::function<void(CCell&)> store) {
    const auto later = [](QWidget* widget) { widget->deleteLater(); };
    open_ = {{control, later}, cell, grid_.GetCell(cell.row, cell.col), std::move(store)};
    control->setFont(grid_.font());
    Place();
    if (!open_.control) return;
    control->show();
    control->setFocus(Qt::OtherFocusReason);
}

// The cell under the open control, which may be written; null if it is no longer there or no longer of its
// kind.
CCell* FBGridInPlace::OpenCell() {
    if (!open_.control || !parts_.Exists(open_.cell)) return nullptr;
    CCell& cell = grid_.GetCell(open_.cell.row, open_.cell.col);
    constexpr std::uint32_t kKinds = CCell::kEdit | CCell::kList | CCell::kFreeList;
    return (cell.state & kKinds) == (open_.known.state & kKinds) ? &cell : nullptr;
}

void FBGridInPlace::Write(const std::function<void(CCell&)>& write) {
    CCell* cell = OpenCell();
    if (!cell) return;
    write(*cell);
    open_.known = *cell;
}

bool FBGridInPlace::End(bool store) {
    const QPointer<CFBGrid> alive(&grid_);
    const std::shared_ptr<QWidget> control = open_.control;
    if (!control) return true;
    // An input method hands over what it holds while the control can still take it.
    if (store && control->hasFocus()) QGuiApplication::inputMethod()->commit();
    if (!alive || open_.control != control) return !alive.isNull();
    if (store) Write(open_.store);
    const CCellID place = std::exchange(open_, {}).cell;
    if (grid_.window()->focusWidget() == control.get()) grid_.setFocus(Qt::OtherFocusReason);
    if (!alive) return false;
    Retire(control);
    grid_.InvalidateCell(place.row, place.col);
    return true;
}

// The control may be the one whose event led here: it is taken from the window, and outlives the event even
// if the grid doesn't.
void FBGridInPlace::Retire(const std::shared_ptr<QWidget>& control) {
    control->disconnect(&grid_);
    control->hide();
    control->setParent(nullptr);
}

void FBGridInPlace::Place() {
    if (!open_.control) return;
    const auto rect = grid_.Geometry().GetCellRect(open_.cell.row, open_.cell.col);
    if (rect) {
        open_.control->setGeometry(rect->left, rect->top, rect->width, rect->height);
    } else {
        End(true);
    }
}

void FBGridInPlace::Abandon() {
    if (const auto control = std::exchange(open_, {}).control) Retire(control);
}

void FBGridInPlace::DropOfOtherCell() {
    if (!open_.control) return;
    const CCell* cell = OpenCell();
    const CCell& known = open_.known;
    if (!cell || cell->text != known.text || cell->value != known.value) End(false);
}

}  // namespace jogeon
