#include "screen/fbgrid/fb_grid_sizes_widget.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "screen/fbgrid/fb_grid_accessible_qt.h"
#include "screen/fbgrid/fb_grid_parts_widget.h"

namespace jogeon {

void FBGridSizes::FixBars(bool horizontal, bool vertical) {
    const auto policy = [](bool fixed) { return fixed ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded; };
    grid_.setHorizontalScrollBarPolicy(policy(horizontal));
    grid_.setVerticalScrollBarPolicy(policy(vertical));
    FitBars();
}

// What the bars that are needed leave of the window. A bar takes room that may make the other one necessary.
QSize FBGridSizes::ClientBesideBars() const {
    QSize client = grid_.maximumViewportSize();
    const auto takeRoom = [&](Qt::Orientation bar) {
        const QSize room = parts_.scroll.Bar(bar).sizeHint();
        const bool vertical = bar == Qt::Vertical;
        const auto policy = vertical ? grid_.verticalScrollBarPolicy() : grid_.horizontalScrollBarPolicy();
        if (policy == Qt::ScrollBarAlwaysOn) return;  // it has its room already
        client -= vertical ? QSize(room.width(), 0) : QSize(0, room.height());
    };
    const bool tall = parts_.scroll.GeometryOf(client).VerticalRange().needed;
    if (tall) takeRoom(Qt::Vertical);
    if (parts_.scroll.GeometryOf(client).HorizontalRange().needed) {
        takeRoom(Qt::Horizontal);
        if (!tall && parts_.scroll.GeometryOf(client).VerticalRange().needed) takeRoom(Qt::Vertical);
    }
    return client;
}

void FBGridSizes::FitBars() {
    if (fittingBars_) return;
    const QScopedValueRollback fitting(fittingBars_, true);
    const QSize client = ClientBesideBars();
    FitBar(Qt::Vertical, parts_.scroll.GeometryOf(client).VerticalRange());
    FitBar(Qt::Horizontal, parts_.scroll.GeometryOf(client).HorizontalRange());
    // Qt would show and hide the bars later, as if the window had changed its size then.
    QEvent layout(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(&grid_, &layout);
    parts_.inPlace.Place();
}

void FBGridSizes::FitBar(Qt::Orientation bar, const ScrollRange& range) {
    parts_.scroll.Bar(bar).setPageStep(std::max(range.page, 1));
    parts_.scroll.Bar(bar).setEnabled(range.needed);
    parts_.scroll.Bar(bar).setRange(0, range.maximum);
}

// A change of size takes the focus. That may change sizes elsewhere, so while one grid takes it no other
// does, or two of them could take it from each other for ever.
void FBGridSizes::OnWindowResized() {
    static bool taking = false;
    if (fittingBars_) return;
    if (grid_.isVisible() && !taking) {
        const QScopedValueRollback guard(taking, true);
        if (!parts_.TakeFocus()) return;
    }
    FitBars();
}

// Fewer rows or columns: what the user was doing may now lie under another row's cells, and must not be
// taken for theirs.
void FBGridSizes::OnSizesChanged(bool redraw) {
    const bool fewer = grid_.GetRowCnt() < rowsBefore_ || grid_.GetColCnt() < columnsBefore_;
    const bool counts = grid_.GetRowCnt() != rowsBefore_ || grid_.GetColCnt() != columnsBefore_;
    rowsBefore_ = grid_.GetRowCnt();
    columnsBefore_ = grid_.GetColCnt();
    if (fewer) {
        parts_.mouse.Cancel();
        parts_.keys.DropMove();
    }
    if (counts) AnnounceReset(grid_);
    parts_.inPlace.DropOfOtherCell();
    FitBars();
    if (redraw) grid_.viewport()->update();
}

}  // namespace jogeon
