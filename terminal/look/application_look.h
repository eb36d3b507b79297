// What all windows of the program have in common, whatever the desktop: style and font.
#pragma once

namespace jogeon::terminal {

// To be called once, before the first window.
void SetApplicationLook();

}  // namespace jogeon::terminal
