// A window beside the work with a page to read. It is gone when it is closed.
#pragma once

#include <QString>
#include <QWidget>

namespace jogeon::terminal {

// Shows a page of rich text in a window over `parent`, or brings it to the front if it stands open; `name`
// tells windows apart.
void ShowHelp(QWidget& parent, const QString& name, const QString& title, const QString& page);

// Version, licence and what it was built with.
QString AboutPage();

}  // namespace jogeon::terminal
