#include "screen/fbgrid/fb_grid_widget.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <utility>

#include "screen/fbgrid/fb_cell_painter_qt.h"
#include "screen/fbgrid/fb_grid_accessible_qt.h"
#include "screen/fbgrid/fb_grid_painter_qt.h"
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

CFBGrid::CFBGrid(QWidget* parent) : QAbstractScrollArea(parent), look_(std::make_unique<FBGridLook>()) {
    InstallGridAccessibility();
    setProperty(kWindowClassProperty, kGridWindowClass);
    setFrameShape(QFrame::NoFrame);
    // A press takes the focus by itself, and only the left one does.
    setFocusPolicy(Qt::TabFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);  // every pixel is painted, so nothing is erased before
    ConnectScrollBars();
}

CFBGrid::~CFBGrid() {
    if (const auto control = std::exchange(inPlace_, {}).control) Retire(control);
}

bool CFBGrid::Create(const QRect& rect, QWidget* parent, int id) {
    setParent(parent);
    id_ = id;
    setObjectName(QString::number(id));
    if (parent) setFont(parent->font());
    setGeometry(rect);
    return true;
}

bool CFBGrid::Notify(int code, int row, int col) {
    const QPointer<CFBGrid> self(this);
    if (QWidget* parent = parentWidget()) {
        FBGridNotify notify(*this, code, row, col);
        QCoreApplication::sendEvent(parent, &notify);
    }
    return !self.isNull();
}

void CFBGrid::SetImageList(const std::vector<QPixmap>* images) {
    look_->images = images;
    viewport()->update();
}

void CFBGrid::SetFont(const QFont& font) {
    setFont(font);
}

void CFBGrid::SetFixedCellColor(FBColour colour) {
    look_->fixedCellColour = colour;
    viewport()->update();
}

FBColour CFBGrid::GetFixedCellColor() const {
    return look_->fixedCellColour;
}

void CFBGrid::SetGridLine(FBColour colour) {
    look_->gridLineColour = colour;
    viewport()->update();
}

FBGridGeometry CFBGrid::GeometryOf(QSize client) const {
    return FBGridGeometry(*this, {client.width(), client.height()}, horizontalScrollBar()->value(),
                          verticalScrollBar()->value());
}

FBGridGeometry CFBGrid::Geometry() const {
    return GeometryOf(viewport()->size());
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

// The look is kept, with the texts that it has laid out; what Qt decides about it is asked for each picture.
const FBGridLook& CFBGrid::LookNow(CCellID pressedButton) const {
    look_->font = font();
    look_->palette = palette();
    look_->pressedButton = pressedButton;
    return *look_;
}

void CFBGrid::paintEvent(QPaintEvent* event) {
    const auto* press = std::get_if<ButtonPress>(&gesture_);
    const FBGridLook& look = LookNow(press && press->inside ? press->cell : CCellID());
    const FBGridGeometry geometry = Geometry();
    QPainter dc(viewport());
    FBGridPainter(*this, geometry, {viewport()->width(), viewport()->height()}, look)
        .OnDraw(dc, event->rect());
}
