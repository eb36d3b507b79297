// Bytes in which Qt writes down places of windows and widths of columns, in the user's state file.
//
// Qt takes damaged ones without a look: they can crash it or keep it busy for ever, at every start. So a
// digest stands before them, and bytes that don't fit it are none.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

namespace jogeon::terminal {

void KeepBytes(QSettings& file, const QString& key, const QByteArray& bytes);

// What was kept under the key; empty if there is nothing, or it was damaged since.
QByteArray KeptBytes(const QSettings& file, const QString& key);

}  // namespace jogeon::terminal
