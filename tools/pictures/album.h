// The pictures of one theme, as files.
#pragma once

#include <QString>
#include <QStringList>

namespace jogeon::pictures {

// Takes the pictures with these names, all of them if there are none, in this theme ("light" or "dark") and
// saves them as PNG files in `folder`, which exists. Throws when a picture can't be taken or saved.
void TakePictures(const QString& theme, const QString& folder, const QStringList& wanted);

}  // namespace jogeon::pictures
