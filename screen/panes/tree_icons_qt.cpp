#include "screen/panes/tree_icons_qt.h"

#include <QPainter>
#include <QPainterPath>

#include "screen/condition/catalogue.h"
#include "screen/palette/colors_qt.h"
#include "screen/palette/drawn_icon_qt.h"

namespace jogeon {
namespace {

using Draw = void (*)(QPainter& painter, bool selected, bool open);

void SetColors(QPainter& painter, Color edge, Color fill, double width = 1) {
    painter.setPen(QPen(ToQColor(edge), width, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    painter.setBrush(ToQColor(fill));
}

void DrawFolder(QPainter& painter, bool selected, bool open) {
    SetColors(painter, Color::TreeFolderEdge, Color::TreeFolder);
    painter.drawPolygon(
        QPolygonF({{1.5, 13.5}, {1.5, 3.5}, {6, 3.5}, {7.5, 5.5}, {13.5, 5.5}, {13.5, 13.5}}));
    if (!selected && !open) return;
    painter.setBrush(ToQColor(Color::TreeFolderFront));
    painter.drawPolygon(QPolygonF({{1.5, 13.5}, {4, 8.5}, {15.5, 8.5}, {13.5, 13.5}}));
}

// A person: what the user has put together.
void DrawUser(QPainter& painter, bool selected, bool) {
    SetColors(painter, Color::Accent, selected ? Color::Accent : Color::ControlFace, 1.2);
    painter.drawEllipse(QPointF(8, 5), 2.9, 2.9);
    QPainterPath shoulders(QPointF(2.5, 14.4));
    shoulders.cubicTo(2.5, 8.2, 13.5, 8.2, 13.5, 14.4);
    shoulders.closeSubpath();
    painter.drawPath(shoulders);
}

// An office building: what comes from the firm.
void DrawFirm(QPainter& painter, bool selected, bool) {
    SetColors(painter, Color::Accent, selected ? Color::Accent : Color::ControlFace);
    painter.drawRect(QRectF(3.5, 1.5, 9, 13));
    const QColor windows = ToQColor(selected ? Color::ControlFace : Color::Accent);
    for (const int y : {4, 7}) {
        for (const int x : {5, 9}) painter.fillRect(QRectF(x, y, 2, 2), windows);
    }
    painter.fillRect(QRectF(7, 11, 2, 4), windows);
}

// A sheet with the lines of its conditions.
void DrawSavedSet(QPainter& painter, bool selected, bool) {
    SetColors(painter, Color::Accent, selected ? Color::Accent : Color::ControlFace);
    painter.drawPolygon(QPolygonF({{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}}));
    const QColor lines = ToQColor(selected ? Color::ControlFace : Color::Accent);
    for (const int y : {6, 9, 12}) painter.fillRect(QRectF(5, y, 6, 1), lines);
}

// A curve over two axes.
void DrawIndicator(QPainter& painter, bool selected, bool) {
    painter.setPen(QPen(ToQColor(selected ? Color::ControlText : Color::ControlFaintText), 1));
    painter.drawPolyline(QPolygonF({{2.5, 2}, {2.5, 13.5}, {15, 13.5}}));
    painter.setPen(QPen(ToQColor(selected ? Color::Accent : Color::GridFall), selected ? 2 : 1.5,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{4.5, 11}, {7.5, 6.5}, {10, 9}, {14, 3.5}}));
}

// A falling candle and a rising one.
void DrawPattern(QPainter& painter, bool selected, bool) {
    const auto candle = [&](double middle, double top, double bottom, Color color) {
        SetColors(painter, color, selected ? color : Color::ControlFace);
        painter.drawLine(QPointF(middle, top - 2), QPointF(middle, bottom + 2));
        painter.drawRect(QRectF(middle - 2, top, 4, bottom - top));
    };
    candle(4.5, 5.5, 11.5, Color::GridFall);
    candle(11.5, 3.5, 10.5, Color::GridRise);
}

void DrawGlass(QPainter& painter, bool, bool) {
    painter.setPen(QPen(ToQColor(Color::ControlText), 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QPointF(6.75, 6.75), 4, 4);
    painter.drawLine(QPointF(9.75, 9.75), QPointF(13.5, 13.5));
}

Draw DrawOf(int image) {
    switch (image) {
        case kImageUserRoot:
            return DrawUser;
        case kImageVendorRoot:
            return DrawFirm;
        case kImageSavedSet:
            return DrawSavedSet;
        case kImageIndicator:
            return DrawIndicator;
        case kImagePatternIndicator:
            return DrawPattern;
        default:
            return DrawFolder;
    }
}

QIcon IconOf(Draw draw) {
    return DrawnIcon([draw](QPainter& painter, QIcon::Mode mode, QIcon::State state) {
        draw(painter, mode == QIcon::Selected, state == QIcon::On);
    });
}

}  // namespace

QIcon TreeIcon(int image) {
    return IconOf(DrawOf(image));
}

QIcon FindIcon() {
    return IconOf(DrawGlass);
}

}  // namespace jogeon
