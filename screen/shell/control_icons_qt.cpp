#include "screen/shell/control_icons_qt.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QtMath>

#include "screen/shell/control_table.h"

namespace jogeon {
namespace {

constexpr int kSize = 16;  // logical pixels of a picture
constexpr int kScale = 3;  // drawn larger, so that a dense display has enough of it

template <typename Draw>
QIcon Drawn(Draw draw) {
    QPixmap picture(kSize * kScale, kSize * kScale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kScale, kScale);
    painter.setPen(QPen(QGuiApplication::palette().color(QPalette::ButtonText), 1.3));
    draw(painter);
    return QIcon(picture);
}

// Candles of a chart.
void DrawChart(QPainter& painter) {
    for (const auto& [x, top, height, rising] :
         {std::tuple(2.0, 7.0, 5.0, true), {6.5, 4.0, 6.0, false}, {11.0, 3.0, 7.0, true}}) {
        painter.drawLine(QPointF(x + 1.5, top - 2), QPointF(x + 1.5, top + height + 2));
        painter.fillRect(QRectF(x, top, 3, height),
                         rising ? QColor(0xd6, 0x28, 0x28) : QColor(0x1f, 0x4e, 0xc8));
    }
}

void DrawGear(QPainter& painter) {
    painter.translate(kSize / 2.0, kSize / 2.0);
    for (int tooth = 0; tooth < 8; ++tooth) {
        painter.drawLine(QPointF(0, -4), QPointF(0, -6.5));
        painter.rotate(45);
    }
    painter.drawEllipse(QPointF(0, 0), 4, 4);
    painter.drawEllipse(QPointF(0, 0), 1.5, 1.5);
}

void DrawSheet(QPainter& painter) {
    painter.drawRect(QRectF(2.5, 2.5, 11, 11));
    for (const double at : {6.2, 9.8}) {
        painter.drawLine(QPointF(2.5, at), QPointF(13.5, at));
        painter.drawLine(QPointF(at, 2.5), QPointF(at, 13.5));
    }
}

void DrawPaneArrow(QPainter& painter, bool closed) {
    painter.drawRect(QRectF(1.5, 2.5, 13, 11));
    painter.drawLine(QPointF(5.5, 2.5), QPointF(5.5, 13.5));
    const double tip = closed ? 11.5 : 8.5;
    const double back = closed ? 8.5 : 11.5;
    painter.drawPolyline(QPolygonF({QPointF(back, 5.5), QPointF(tip, 8), QPointF(back, 10.5)}));
}

}  // namespace

QIcon ControlIcon(int id) {
    switch (id) {
        case control::kChart:
            return Drawn(DrawChart);
        case control::kSettings:
            return Drawn(DrawGear);
        case control::kSaveConditionsAsSheet:
            return Drawn(DrawSheet);
        case control::kLeftPaneToggle:
            return LeftPaneIcon(false);
        default:
            return {};
    }
}

QIcon LeftPaneIcon(bool closed) {
    return Drawn([closed](QPainter& painter) { DrawPaneArrow(painter, closed); });
}

}  // namespace jogeon
