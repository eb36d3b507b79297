#include "screen/expression/expression_cursors_qt.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "screen/palette/colors_qt.h"

namespace jogeon {
namespace {

constexpr int kSize = 32;  // what every window system shows
constexpr QPointF kTip(1.5, 1.5);
constexpr QRectF kTag(4.5, 17.5, 27, 14);
constexpr qreal kTagRadius = 3;
constexpr int kLetterHeight = 12;

QPainterPath Arrow() {
    QPainterPath arrow(kTip);
    for (const QPointF& corner : {QPointF(0, 15), QPointF(3.6, 11.6), QPointF(10.6, 11)}) {
        arrow.lineTo(kTip + corner);
    }
    arrow.closeSubpath();
    return arrow;
}

}  // namespace

QPixmap OperatorPointer(bool isAnd, qreal ratio) {
    const int side = static_cast<int>(std::ceil(kSize * ratio));
    QPixmap picture(side, side);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ToQColor(Color::ControlFace), 1));
    painter.setBrush(ToQColor(Color::Accent));
    painter.drawRoundedRect(kTag, kTagRadius, kTagRadius);
    painter.setBrush(ToQColor(Color::ControlText));
    painter.drawPath(Arrow());

    QFont font = QGuiApplication::font();
    font.setPixelSize(kLetterHeight);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(ToQColor(Color::AccentText));
    painter.drawText(kTag.translated(0, -1), Qt::AlignCenter, isAnd ? "and" : "or");
    return picture;
}

QCursor OperatorCursor(bool isAnd, qreal ratio) {
    return QCursor(OperatorPointer(isAnd, ratio), 1, 1);
}

}  // namespace jogeon
