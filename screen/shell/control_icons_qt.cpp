#include "screen/shell/control_icons_qt.h"

#include <QPainter>
#include <utility>

#include "screen/palette/colors_qt.h"
#include "screen/palette/drawn_icon_qt.h"
#include "screen/shell/control_table.h"

namespace jogeon {
namespace {

constexpr double kMiddle = 8;  // of the 16 units of an icon

QIcon Lined(std::function<void(QPainter&)> draw) {
    return DrawnIcon([draw = std::move(draw)](QPainter& painter, QIcon::Mode, QIcon::State) {
        painter.setPen(QPen(ToQColor(Color::ControlText), 1.3));
        draw(painter);
    });
}

// Candles of a chart.
void DrawChart(QPainter& painter) {
    for (const auto& [x, top, height, rising] :
         {std::tuple(2.0, 7.0, 5.0, true), {6.5, 4.0, 6.0, false}, {11.0, 3.0, 7.0, true}}) {
        painter.drawLine(QPointF(x + 1.5, top - 2), QPointF(x + 1.5, top + height + 2));
        painter.fillRect(QRectF(x, top, 3, height), ToQColor(rising ? Color::GridRise : Color::GridFall));
    }
}

void DrawGear(QPainter& painter) {
    painter.translate(kMiddle, kMiddle);
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
            return Lined(DrawChart);
        case control::kSettings:
            return Lined(DrawGear);
        case control::kSaveConditionsAsSheet:
            return Lined(DrawSheet);
        case control::kLeftPaneToggle:
            return LeftPaneIcon(false);
        default:
            return {};
    }
}

QIcon LeftPaneIcon(bool closed) {
    return Lined([closed](QPainter& painter) { DrawPaneArrow(painter, closed); });
}

}  // namespace jogeon
