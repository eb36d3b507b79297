#include "screen/fbgrid/fb_grid_widget.h"

#include "screen/fbgrid/fb_grid_accessible_qt.h"
#include "screen/fbgrid/fb_grid_parts_widget.h"
#include "screen/fbgrid/fb_window_class_qt.h"

using namespace jogeon;

namespace {

QRect ToQRect(const GridRect& rect) {
    return QRect(rect.left, rect.top, rect.width, rect.height);
}

}  // namespace

FBGridNotify::FBGridNotify(CFBGrid& from, int what, int rowField, int colField)
    : QEvent(EventType()), grid(from), id(from.ControlId()), code(what), row(rowField), col(colField) {}

QEvent::Type FBGridNotify::EventType() {
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

CFBGrid::CFBGrid(QWidget* parent)
    : QAbstractScrollArea(parent), parts_(std::make_unique<FBGridParts>(*this)) {
    InstallGridAccessibility();
    setProperty(kWindowClassProperty, kGridWindowClass);
    setFrameShape(QFrame::NoFrame);
    // A press takes the focus by itself, and only the left one does.
    setFocusPolicy(Qt::TabFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);  // every pixel is painted, so nothing is erased before
}

CFBGrid::~CFBGrid() {
    parts_->inPlace.Abandon();
}

bool CFBGrid::Create(const QRect& rect, QWidget* parent, int id) {
    setParent(parent);
    parts_->controlId = id;
    setObjectName(QString::number(id));
    if (parent) setFont(parent->font());
    setGeometry(rect);
    return true;
}

int CFBGrid::ControlId() const {
    return parts_->controlId;
}

void CFBGrid::SetImageList(const std::vector<QPixmap>* images) {
    parts_->look.images = images;
    viewport()->update();
}

void CFBGrid::SetFont(const QFont& font) {
    setFont(font);
}

void CFBGrid::SetFixedCellColor(FBColour colour) {
    parts_->look.fixedCellColour = colour;
    viewport()->update();
}

FBColour CFBGrid::GetFixedCellColor() const {
    return parts_->LookNow(parts_->look.pressedButton).FixedCellColour();
}

void CFBGrid::SetGridLine(FBColour colour) {
    parts_->look.gridLineColour = colour;
    viewport()->update();
}

bool CFBGrid::InvalidateCell(int row, int col) {
    AnnounceCell(*this, {row, col});
    const std::optional<GridRect> rect = Geometry().GetCellRect(row, col);
    if (!rect) return false;
    viewport()->update(ToQRect(*rect));
    return true;
}

void CFBGrid::InvalidateRow(int row) {
    if (const auto rect = Geometry().GetRowRect(row)) viewport()->update(ToQRect(*rect));
}

void CFBGrid::UpdateGrid(bool redraw) {
    ResetScrollBars();
    SetScrollPos32(Qt::Horizontal, 0, redraw);
    SetScrollPos32(Qt::Vertical, 0, redraw);
    if (redraw) viewport()->update();
}

FBGridGeometry CFBGrid::Geometry() const {
    return parts_->scroll.Geometry();
}
