#include "screen/fbgrid/fb_grid_scroll_widget.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "screen/fbgrid/fb_grid_parts_widget.h"

namespace jogeon {

FBGridScroll::FBGridScroll(CFBGrid& grid, FBGridParts& parts) : grid_(grid), parts_(parts) {
    for (const Qt::Orientation bar : {Qt::Horizontal, Qt::Vertical}) {
        Bar(bar).installEventFilter(this);
        connect(&Bar(bar), &QScrollBar::actionTriggered, this,
                [this, bar](int action) { OnAction(bar, action); });
    }
}

QScrollBar& FBGridScroll::Bar(Qt::Orientation bar) const {
    return bar == Qt::Vertical ? *grid_.verticalScrollBar() : *grid_.horizontalScrollBar();
}

FBGridGeometry FBGridScroll::GeometryOf(QSize client) const {
    return FBGridGeometry(grid_, {client.width(), client.height()}, Bar(Qt::Horizontal).value(),
                          Bar(Qt::Vertical).value());
}

FBGridGeometry FBGridScroll::Geometry() const {
    return GeometryOf(grid_.viewport()->size());
}

// The wheel moves the focus wherever the pointer is, over a bar too.
bool FBGridScroll::eventFilter(QObject* bar, QEvent* event) {
    if (event->type() != QEvent::Wheel) return QObject::eventFilter(bar, event);
    parts_.mouse.Wheel(static_cast<QWheelEvent&>(*event));
    return true;
}

// The bar has proposed a position of its own and takes ours in its place; a drag of the thumb is taken as it
// is.
void FBGridScroll::OnAction(Qt::Orientation bar, int action) {
    if (!parts_.TakeFocus()) return;
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
    if (step) Bar(bar).setSliderPosition(After(bar, *step));
}

int FBGridScroll::After(Qt::Orientation bar, ScrollStep step) const {
    return bar == Qt::Vertical ? Geometry().AfterVerticalStep(step) : Geometry().AfterHorizontalStep(step);
}

void FBGridScroll::Step(Qt::Orientation bar, ScrollStep step) {
    SetPosition(bar, After(bar, step), true);
}

void FBGridScroll::SetPosition(Qt::Orientation bar, int pos, bool redraw) {
    const QScopedValueRollback quiet(repaintOnScroll_, redraw);
    Bar(bar).setValue(pos);
}

int FBGridScroll::Position(Qt::Orientation bar, bool track) const {
    return track ? Bar(bar).sliderPosition() : Bar(bar).value();
}

// Only what scrolls is repainted, and nothing where the same cell stays first.
void FBGridScroll::OnScrolled(int dx, int dy) {
    const FBGridGeometry now = Geometry();
    const FBGridGeometry before(grid_, {grid_.viewport()->width(), grid_.viewport()->height()},
                                Bar(Qt::Horizontal).value() + dx, Bar(Qt::Vertical).value() + dy);
    const CCellID from = before.GetTopleftNonFixedCell();
    const CCellID to = now.GetTopleftNonFixedCell();
    if (from == to) return;
    parts_.inPlace.Place();
    if (!repaintOnScroll_) return;
    QRect body = grid_.viewport()->rect();
    if (from.row == to.row) body.setLeft(grid_.GetFixedColWidth());
    if (from.col == to.col) body.setTop(grid_.GetFixedRowHeight());
    const auto moved = [](const FBAxis& axis, int old, int next) {
        return static_cast<int>(
            std::clamp<std::int64_t>(axis.Offset(old) - axis.Offset(next), -(1 << 16), 1 << 16));
    };
    // What stays on the window is moved there; Qt asks for what comes into view.
    grid_.viewport()->scroll(moved(grid_.Columns(), from.col, to.col), moved(grid_.Rows(), from.row, to.row),
                             body);
}

}  // namespace jogeon
