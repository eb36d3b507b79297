#include "screen/fbgrid/fb_device_pixels_qt.h"

#include <algorithm>
#include <cmath>

namespace jogeon {

FBDevicePixels::FBDevicePixels(QPainter& dc)
    : dc_(dc),
      toDevice_(dc.deviceTransform()),
      fromDevice_(toDevice_.inverted()),
      line_(std::max(1.0, std::floor(toDevice_.m11())) / toDevice_.m11()) {}

QPointF FBDevicePixels::Whole(const QPointF& point) const {
    return fromDevice_.map(QPointF(toDevice_.map(point).toPoint()));
}

QRectF FBDevicePixels::Whole(const QRectF& rect) const {
    return {Whole(rect.topLeft()), Whole(rect.bottomRight())};
}

void FBDevicePixels::Fill(const QRectF& rect, const QColor& colour) {
    if (!rect.isEmpty()) dc_.fillRect(Whole(rect), colour);
}

QRectF FBDevicePixels::Frame(const QRectF& rect, const QColor& leftTop, const QColor& rightBottom) {
    const QRectF whole = Whole(rect);
    if (whole.isEmpty()) return whole;
    Fill(QRectF(whole.topLeft(), QSizeF(whole.width(), line_)), leftTop);
    Fill(QRectF(whole.topLeft(), QSizeF(line_, whole.height())), leftTop);
    return RightBottomLines(whole, rightBottom).adjusted(line_, line_, 0, 0);
}

QRectF FBDevicePixels::RightBottomLines(const QRectF& rect, const QColor& colour) {
    const QRectF whole = Whole(rect);
    const QRectF within = whole.adjusted(0, 0, -line_, -line_);
    Fill(QRectF(QPointF(within.right(), whole.top()), whole.bottomRight()), colour);
    Fill(QRectF(QPointF(whole.left(), within.bottom()), whole.bottomRight()), colour);
    return within;
}

}  // namespace jogeon
