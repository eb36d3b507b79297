// Small pictures for the controls that have one in the place of a caption.
#pragma once

#include <QIcon>

namespace jogeon {

// The picture of a control, none for most.
QIcon ControlIcon(int id);

// The picture of the button that hides or shows the left pane.
QIcon LeftPaneIcon(bool closed);

}  // namespace jogeon
