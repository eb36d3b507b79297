// The code that a page shows of itself.
#pragma once

#include <QString>

// The lines of a page's source file ("texts_page.cpp") that stand between the comments "--- shown" and
// "--- to here", without their common indentation.
QString ShownCode(const QString& file);
