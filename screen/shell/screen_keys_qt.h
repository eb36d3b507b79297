// The keys that reach the screen's commands from anywhere in it, in one table.
//
// They go beside what each window does with its own keys: the condition list, the expression box and the tree
// use none of these.
#pragma once

#include <functional>

#include "screen/shell/screen_form_widget.h"

namespace jogeon {

// While `screen` or a window in it has the focus, a key clicks its button, if that is enabled, or takes the
// focus to its window.
void WireScreenKeys(QWidget& screen, const ScreenForm& form);

// The same for a command without a button: a key runs it.
void WireScreenKey(QWidget& screen, QKeyCombination key, std::function<void()> command);

}  // namespace jogeon
