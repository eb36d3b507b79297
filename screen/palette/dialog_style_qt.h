// The look of the screen's dialogs, of its own colours.
#pragma once

class QDialog;

namespace jogeon {

// Gives a dialog its colours in the current theme, and its buttons, edit boxes and lists their look. The
// default button is the one that stands out.
void StyleDialog(QDialog& dialog);

}  // namespace jogeon
