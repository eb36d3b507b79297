// The look of the screen's dialogs, of its own colours.
#pragma once

#include <QString>

namespace jogeon {

// A style sheet for a dialog with buttons, edit boxes and lists with columns. The default button is the one
// that stands out.
QString DialogStyle();

}  // namespace jogeon
