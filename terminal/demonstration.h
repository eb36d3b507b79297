// What ./run shows where there is no display: a set opened and searched, a picture, the first rows.
#pragma once

#include <QString>

#include "terminal/terminal.h"

namespace jogeon::terminal {

// Opens `set`, or the first set of the list if that is empty, searches, writes a picture of its window to
// `picture` and prints where it is and the first rows. The exit status: 0, or 2 after a line on standard
// error.
int Demonstrate(Terminal& terminal, const QString& set, const QString& picture);

}  // namespace jogeon::terminal
