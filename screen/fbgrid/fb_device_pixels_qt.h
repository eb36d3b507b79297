// Fills and thin lines in whole pixels of the device, whatever its scale.
//
// On a display scaled to 125 % a logical pixel is sometimes one and sometimes two of the device's. Edges are
// rounded the same way for all neighbours, so that no gap opens between them, and a line has one thickness
// everywhere.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace jogeon {

class FBDevicePixels {
public:
    // `dc` outlives this, and is neither turned nor scaled in the meantime.
    explicit FBDevicePixels(QPainter& dc);

    // The nearest rectangle, or point, with its edges between pixels of the device.
    QRectF Whole(const QRectF& rect) const;
    QPointF Whole(const QPointF& point) const;

    // An empty rectangle is left out.
    void Fill(const QRectF& rect, const QColor& colour);

    // Lines just within the edges of `rect`; the second colour has the corners that two colours meet in.
    // Gives back what lies within the lines.
    QRectF Frame(const QRectF& rect, const QColor& leftTop, const QColor& rightBottom);

    // Lines along the right and the bottom edge only. Gives back what they leave.
    QRectF RightBottomLines(const QRectF& rect, const QColor& colour);

private:
    QPainter& dc_;
    const QTransform toDevice_;
    const QTransform fromDevice_;
    const qreal line_;  // thickness of a thin line: whole pixels of the device, at least one
};

}  // namespace jogeon
