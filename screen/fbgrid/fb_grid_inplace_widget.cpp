// The part of CFBGrid that opens an editor or a list over a cell, and ends it.
#include <QComboBox>
#include <QGuiApplication>
#include <QInputMethod>
#include <utility>

#include "screen/fbgrid/fb_grid_widget.h"
#include "screen/fbgrid/fb_inplace_edit.h"
#include "screen/fbgrid/fb_inplace_list_widget.h"
#include "screen/text/cp949.h"

using namespace jogeon;

void CFBGrid::OpenEdit(CCellID cell) {
    if (!EndInPlace(true) || !Exists(cell)) return;
    auto* edit = new FBInPlaceEdit(viewport(), GetCell(cell.row, cell.col));
    connect(edit, &FBInPlaceEdit::Ended, this, [this] { EndInPlace(true); });
    Open(edit, cell, [edit](CCell& target) { edit->StoreInto(target); });
}

void CFBGrid::OpenList(CCellID cell) {
    if (!EndInPlace(true) || !Exists(cell)) return;
    const CCell& shown = GetCell(cell.row, cell.col);
    const CStringArray* items = DropDownItems(shown.listIndex);
    if (!items) return;
    auto* list = new FBInPlaceList(viewport(), *items, shown);
    ConnectList(*list);
    Open(list, cell, [list](CCell& target) { list->StoreSelection(target); });
}

void CFBGrid::ConnectList(FBInPlaceList& list) {
    connect(&list, &QComboBox::activated, this, [this, &list](int index) { OnListSelection(list, index); });
    connect(&list, &QComboBox::currentIndexChanged, this, [this, &list](int index) {
        const auto held = inPlace_.control;  // the list is in the midst of this, whatever becomes of the grid
        OnListSelection(list, index);
        Notify(FBGridNotify::kChildCommand);
    });
    connect(&list, &QComboBox::editTextChanged, this, [this](const QString& text) {
        WriteInPlace([&](CCell& cell) { cell.text = ToCp949(text.toStdString()); });
    });
    connect(&list, &FBInPlaceList::Ended, this, [this] { EndInPlace(true); });
    connect(&list, &FBInPlaceList::KeyPassed, this, [this](int key) {
        if (EndInPlace(true)) Key(key);
    });
}

void CFBGrid::OnListSelection(const QComboBox& list, int index) {
    if (index < 0) return;
    WriteInPlace([&](CCell& cell) {
        cell.check = static_cast<std::uint32_t>(index);
        cell.text = ToCp949(list.itemText(index).toStdString());
    });
}

void CFBGrid::Open(QWidget* control, CCellID cell, std::function<void(CCell&)> store) {
    const auto later = [](QWidget* widget) { widget->deleteLater(); };
    inPlace_ = {{control, later}, cell, GetCell(cell.row, cell.col), std::move(store)};
    control->setFont(font());
    PlaceInPlace();
    if (!inPlace_.control) return;
    control->show();
    control->setFocus(Qt::OtherFocusReason);
}

// The cell under the open control, which may be written; null if it is no longer there or no longer of its
// kind.
CCell* CFBGrid::InPlaceCell() {
    if (!inPlace_.control || !Exists(inPlace_.cell)) return nullptr;
    CCell& cell = GetCell(inPlace_.cell.row, inPlace_.cell.col);
    constexpr std::uint32_t kKinds = CCell::kEdit | CCell::kList | CCell::kFreeList;
    return (cell.state & kKinds) == (inPlace_.known.state & kKinds) ? &cell : nullptr;
}

void CFBGrid::WriteInPlace(const std::function<void(CCell&)>& write) {
    CCell* cell = InPlaceCell();
    if (!cell) return;
    write(*cell);
    inPlace_.known = *cell;
}

bool CFBGrid::EndInPlace(bool store) {
    const QPointer<CFBGrid> self(this);
    const std::shared_ptr<QWidget> control = inPlace_.control;
    if (!control) return true;
    // An input method hands over what it holds while the control can still take it.
    if (store && control->hasFocus()) QGuiApplication::inputMethod()->commit();
    if (!self || inPlace_.control != control) return !self.isNull();
    if (store) WriteInPlace(inPlace_.store);
    const CCellID place = std::exchange(inPlace_, {}).cell;
    if (window()->focusWidget() == control.get()) setFocus(Qt::OtherFocusReason);
    if (!self) return false;
    Retire(control);
    InvalidateCell(place.row, place.col);
    return true;
}

// The control may be the one whose event led here: it is taken from the window, and outlives the event even
// if the grid doesn't.
void CFBGrid::Retire(const std::shared_ptr<QWidget>& control) {
    control->disconnect(this);
    control->hide();
    control->setParent(nullptr);
}

// Keeps the control over its cell; scrolled out of sight it ends.
void CFBGrid::PlaceInPlace() {
    if (!inPlace_.control) return;
    const auto rect = Geometry().GetCellRect(inPlace_.cell.row, inPlace_.cell.col);
    if (rect) {
        inPlace_.control->setGeometry(rect->left, rect->top, rect->width, rect->height);
    } else {
        EndInPlace(true);
    }
}

// After a change of the cells from outside: a control whose cell isn't the one it was opened on ends, and
// what it holds is written nowhere.
void CFBGrid::DropInPlaceOfOtherCell() {
    if (!inPlace_.control) return;
    const CCell* cell = InPlaceCell();
    const CCell& known = inPlace_.known;
    if (!cell || cell->text != known.text || cell->value != known.value) EndInPlace(false);
}
