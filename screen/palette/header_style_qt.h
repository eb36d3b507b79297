// The look of the headers over the screen's columns.
#pragma once

#include <QString>

#include "screen/palette/colors_qt.h"

namespace jogeon {

inline QString HeaderStyle() {
    return QStringLiteral(
               "QHeaderView { background: %1; border: none; }"
               "QHeaderView::section { background: %1; color: %2; border: none; padding: 0 3px;"
               " border-right: 1px solid %3; border-bottom: 1px solid %3; }")
        .arg(ToQColor(Color::GridHeaderBack).name(), ToQColor(Color::GridHeaderText).name(),
             ToQColor(Color::GridHeaderLine).name());
}

}  // namespace jogeon
