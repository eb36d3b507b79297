// The part of CFBGrid that makes pictures for a host that drags a row or a text.
#include <QPainter>
#include <algorithm>

#include "screen/fbgrid/fb_grid_painter_qt.h"
#include "screen/fbgrid/fb_grid_parts_widget.h"
#include "screen/text/cp949_qt.h"

using namespace jogeon;

namespace {

// A transparent picture of `size` on a screen with `ratio` dots to a pixel; null if it would be empty.
QPixmap EmptyPicture(QSize size, qreal ratio) {
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

}  // namespace

// From the first column on, as many columns as the window is wide.
QPixmap CFBGrid::CreateDragImage(int row) const {
    if (!IsValid(row, 0)) return {};
    const QSize size(std::min(GetVirtualWidth(), viewport()->width()), GetRowHeight(row));
    QPixmap picture = EmptyPicture(size, devicePixelRatioF());
    if (picture.isNull()) return picture;
    const FBGridLook& look = parts_->LookNow({});
    const FBGridGeometry geometry = Geometry();
    const FBGridPainter painter(*this, geometry, {size.width(), size.height()}, look);
    QPainter dc(&picture);
    for (int col = 0; col < GetColCnt() && Columns().Offset(col) < size.width(); ++col) {
        const int left = static_cast<int>(Columns().Offset(col));
        painter.DrawCell(dc, row, col, QRect(left, 0, GetColWidth(col), size.height()));
    }
    return picture;
}

QPixmap CFBGrid::MakeDragImage2(const std::string& text) const {
    const QString shown = ToQString(text);
    QPixmap picture = EmptyPicture(fontMetrics().size(Qt::TextSingleLine, shown), devicePixelRatioF());
    if (picture.isNull()) return picture;
    QPainter dc(&picture);
    dc.setFont(font());
    dc.setPen(palette().color(QPalette::Text));
    dc.drawText(QRect(QPoint(), picture.deviceIndependentSize().toSize()),
                Qt::TextSingleLine | Qt::AlignCenter, shown);
    return picture;
}

void CFBGrid::DropData(const std::string& /*text*/, QPoint /*point*/) {}
