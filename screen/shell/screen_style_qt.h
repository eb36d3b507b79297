// The look of the screen's controls: a compact trading terminal, drawn by one style sheet.
#pragma once

#include <QColor>
#include <QString>

namespace jogeon {

// The style sheet of the screen over this background.
QString ScreenStyle(const QColor& background);

}  // namespace jogeon
