// The part of CFBGrid that scrolls and follows changes of size.
#include <QCoreApplication>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "screen/fbgrid/fb_grid_accessible_qt.h"
#include "screen/fbgrid/fb_grid_widget.h"

using namespace jogeon;

QScrollBar& CFBGrid::Bar(Qt::Orientation bar) const {
    return bar == Qt::Vertical ? *verticalScrollBar() : *horizontalScrollBar();
}

void CFBGrid::ConnectScrollBars() {
    for (const Qt::Orientation bar : {Qt::Horizontal, Qt::Vertical}) {
        Bar(bar).installEventFilter(this);
        connect(&Bar(bar), &QScrollBar::actionTriggered, this,
                [this, bar](int action) { OnScrollAction(bar, action); });
    }
}

// The wheel moves the focus wherever the pointer is, over a bar too.
bool CFBGrid::eventFilter(QObject* object, QEvent* event) {
    const bool ofBar = object == verticalScrollBar() || object == horizontalScrollBar();
    if (!ofBar || event->type() != QEvent::Wheel) return QAbstractScrollArea::eventFilter(object, event);
    wheelEvent(static_cast<QWheelEvent*>(event));
    return true;
}

// The bar has proposed a position of its own and takes ours in its place; a drag of the thumb is taken as it
// is.
void CFBGrid::OnScrollAction(Qt::Orientation bar, int action) {
    if (!TakeFocus()) return;
    const auto step = [&]() -> std::optional<ScrollStep> {
        switch (action) {
            case QAbstractSlider::SliderSingleStepSub:
                return ScrollStep::LineUp;
            case QAbstractSlider::SliderSingleStepAdd:
                return ScrollStep::LineDown;
            case QAbstractSlider::SliderPageStepSub:
                return ScrollStep::PageUp;
            case QAbstractSlider::SliderPageStepAdd:
                return ScrollStep::PageDown;
            case QAbstractSlider::SliderToMinimum:
                return ScrollStep::Top;
            case QAbstractSlider::SliderToMaximum:
                return ScrollStep::Bottom;
            default:
                return std::nullopt;
        }
    }();
    if (step) Bar(bar).setSliderPosition(AfterStep(bar, *step));
}

int CFBGrid::AfterStep(Qt::Orientation bar, ScrollStep step) const {
    return bar == Qt::Vertical ? Geometry().AfterVerticalStep(step) : Geometry().AfterHorizontalStep(step);
}

void CFBGrid::Scroll(Qt::Orientation bar, ScrollStep step) {
    SetScrollPos32(bar, AfterStep(bar, step), true);
}

void CFBGrid::SetScrollPos32(Qt::Orientation bar, int pos, bool redraw) {
    const QScopedValueRollback quiet(repaintOnScroll_, redraw);
    Bar(bar).setValue(pos);
}

int CFBGrid::GetScrollPos32(Qt::Orientation bar, bool track) const {
    return track ? Bar(bar).sliderPosition() : Bar(bar).value();
}

// Only what scrolls is repainted, and nothing where the same cell stays first.
void CFBGrid::scrollContentsBy(int dx, int dy) {
    const FBGridGeometry now = Geometry();
    const FBGridGeometry before(*this, {viewport()->width(), viewport()->height()},
                                horizontalScrollBar()->value() + dx, verticalScrollBar()->value() + dy);
    const CCellID from = before.GetTopleftNonFixedCell();
    const CCellID to = now.GetTopleftNonFixedCell();
    if (from == to) return;
    PlaceInPlace();
    if (!repaintOnScroll_) return;
    QRect body = viewport()->rect();
    if (from.row == to.row) body.setLeft(GetFixedColWidth());
    if (from.col == to.col) body.setTop(GetFixedRowHeight());
    const auto moved = [](const FBAxis& axis, int old, int next) {
        return static_cast<int>(
            std::clamp<std::int64_t>(axis.Offset(old) - axis.Offset(next), -(1 << 16), 1 << 16));
    };
    // What stays on the window is moved there; Qt asks for what comes into view.
    viewport()->scroll(moved(Columns(), from.col, to.col), moved(Rows(), from.row, to.row), body);
}

void CFBGrid::FixScrollBar(bool horizontal, bool vertical) {
    const auto policy = [](bool fixed) { return fixed ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded; };
    setHorizontalScrollBarPolicy(policy(horizontal));
    setVerticalScrollBarPolicy(policy(vertical));
    ResetScrollBars();
}

// A bar takes room that may make the other one necessary, so this is settled before any bar is changed.
void CFBGrid::ResetScrollBars() {
    if (fittingBars_) return;
    const QScopedValueRollback fitting(fittingBars_, true);
    QSize client = maximumViewportSize();
    const auto takeRoom = [&](Qt::Orientation bar) {
        const QSize room = Bar(bar).sizeHint();
        const bool vertical = bar == Qt::Vertical;
        const auto policy = vertical ? verticalScrollBarPolicy() : horizontalScrollBarPolicy();
        if (policy == Qt::ScrollBarAlwaysOn) return;  // it has its room already
        client -= vertical ? QSize(room.width(), 0) : QSize(0, room.height());
    };
    const bool tall = GeometryOf(client).VerticalRange().needed;
    if (tall) takeRoom(Qt::Vertical);
    if (GeometryOf(client).HorizontalRange().needed) {
        takeRoom(Qt::Horizontal);
        if (!tall && GeometryOf(client).VerticalRange().needed) takeRoom(Qt::Vertical);
    }
    FitScrollBar(Qt::Vertical, GeometryOf(client).VerticalRange());
    FitScrollBar(Qt::Horizontal, GeometryOf(client).HorizontalRange());
    // Qt would show and hide the bars later, as if the window had changed its size then.
    QEvent layout(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &layout);
    PlaceInPlace();
}

void CFBGrid::FitScrollBar(Qt::Orientation bar, const ScrollRange& range) {
    Bar(bar).setPageStep(std::max(range.page, 1));
    Bar(bar).setEnabled(range.needed);
    Bar(bar).setRange(0, range.maximum);
}

// A change of size takes the focus. That may change sizes elsewhere, so while one grid takes it no other
// does, or two of them could take it from each other for ever.
void CFBGrid::resizeEvent(QResizeEvent* event) {
    static bool taking = false;
    QAbstractScrollArea::resizeEvent(event);
    if (fittingBars_) return;
    if (isVisible() && !taking) {
        const QScopedValueRollback guard(taking, true);
        if (!TakeFocus()) return;
    }
    ResetScrollBars();
}

void CFBGrid::hideEvent(QHideEvent* event) {
    CancelPointerGesture();
    QAbstractScrollArea::hideEvent(event);
}

// Fewer rows or columns: what the user was doing may now lie under another row's cells, and must not be
// taken for theirs.
void CFBGrid::OnSizesChanged(bool redraw) {
    const bool fewer = GetRowCnt() < rowsBefore_ || GetColCnt() < columnsBefore_;
    const bool counts = GetRowCnt() != rowsBefore_ || GetColCnt() != columnsBefore_;
    rowsBefore_ = GetRowCnt();
    columnsBefore_ = GetColCnt();
    if (fewer) {
        CancelPointerGesture();
        DropMove();
    }
    if (counts) AnnounceReset(*this);
    DropInPlaceOfOtherCell();
    ResetScrollBars();
    if (redraw) viewport()->update();
}

void CFBGrid::OnCellsChanged() {
    DropInPlaceOfOtherCell();
    viewport()->update();
}
