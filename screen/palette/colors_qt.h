// The screen's colours as Qt takes them.
#pragma once

#include <QColor>

#include "screen/palette/colors.h"

namespace jogeon {

inline QColor ToQColor(ColorNumber number) {
    return QColor(number & 0xff, (number >> 8) & 0xff, (number >> 16) & 0xff);
}

inline QColor ToQColor(Color color) {
    return ToQColor(ColorOf(color));
}

}  // namespace jogeon
