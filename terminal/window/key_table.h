// The keys of the terminal and of its screens, as a page for the reader.
#pragma once

#include <QString>

namespace jogeon::terminal {

// Rich text, in the language in use.
QString KeyPage();

}  // namespace jogeon::terminal
