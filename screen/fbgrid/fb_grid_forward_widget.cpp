// The public operations and the events of CFBGrid that a part of it does as a whole.
#include <QPaintEvent>
#include <QPainter>

#include "screen/fbgrid/fb_grid_painter_qt.h"
#include "screen/fbgrid/fb_grid_parts_widget.h"

using namespace jogeon;

void CFBGrid::SetCellFocus(int row, int col, bool redraw, bool noToggle) {
    parts_->focus.Give({row, col}, redraw, noToggle);
}

bool CFBGrid::KillCellFocus(bool redraw) {
    return parts_->focus.Kill(redraw);
}

void CFBGrid::SetFocusRow(int row, int col) {
    parts_->focus.GiveRow({row, col});
}

const FBFocusColours& CFBGrid::FocusColours() const {
    return parts_->focus.Colours();
}

void CFBGrid::BeginMoveRow(int minRow, int maxRow) {
    parts_->keys.BeginMove(minRow, maxRow);
}

void CFBGrid::EndMoveRow() {
    parts_->keys.EndMove();
}

void CFBGrid::SetDragAndDropColumn(int col) {
    parts_->mouse.SetDragColumn(col);
}

void CFBGrid::PressCell(int row, int col) {
    parts_->mouse.PressCell({row, col});
}

void CFBGrid::FixScrollBar(bool horizontal, bool vertical) {
    parts_->sizes.FixBars(horizontal, vertical);
}

void CFBGrid::ResetScrollBars() {
    parts_->sizes.FitBars();
}

void CFBGrid::SetScrollPos32(Qt::Orientation bar, int pos, bool redraw) {
    parts_->scroll.SetPosition(bar, pos, redraw);
}

int CFBGrid::GetScrollPos32(Qt::Orientation bar, bool track) const {
    return parts_->scroll.Position(bar, track);
}

void CFBGrid::OnSizesChanged(bool redraw) {
    parts_->sizes.OnSizesChanged(redraw);
}

void CFBGrid::OnCellsChanged() {
    parts_->inPlace.DropOfOtherCell();
    viewport()->update();
}

bool CFBGrid::event(QEvent* event) {
    if (parts_->keys.TellDelete(*event)) return QAbstractScrollArea::event(event);
    event->accept();
    return true;
}

void CFBGrid::paintEvent(QPaintEvent* event) {
    const auto* press = std::get_if<ButtonPress>(&parts_->gesture);
    const FBGridLook& look = parts_->LookNow(press && press->inside ? press->cell : CCellID());
    const FBGridGeometry geometry = Geometry();
    QPainter dc(viewport());
    FBGridPainter(*this, geometry, {viewport()->width(), viewport()->height()}, look)
        .OnDraw(dc, event->rect());
}

void CFBGrid::mousePressEvent(QMouseEvent* event) {
    parts_->mouse.Press(*event);
}

void CFBGrid::mouseMoveEvent(QMouseEvent* event) {
    parts_->mouse.Move(*event);
}

void CFBGrid::mouseReleaseEvent(QMouseEvent* event) {
    parts_->mouse.Release(*event);
}

void CFBGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    parts_->mouse.DoubleClick(*event);
}

void CFBGrid::wheelEvent(QWheelEvent* event) {
    parts_->mouse.Wheel(*event);
}

// No key goes on to the parent: Enter and Escape would end a dialog.
void CFBGrid::keyPressEvent(QKeyEvent* event) {
    event->accept();
    parts_->keys.Key(event->key());
}

void CFBGrid::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    parts_->focus.KeyboardCame(*event);
}

void CFBGrid::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    parts_->focus.KeyboardWent(*event);
}

void CFBGrid::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    parts_->sizes.OnWindowResized();
}

void CFBGrid::hideEvent(QHideEvent* event) {
    parts_->mouse.Cancel();
    QAbstractScrollArea::hideEvent(event);
}

void CFBGrid::scrollContentsBy(int dx, int dy) {
    parts_->scroll.OnScrolled(dx, dy);
}
