// Which pictures there are, and what is done on the screen for each.
#pragma once

#include <QPixmap>
#include <vector>

#include "tools/pictures/studio.h"

namespace jogeon::pictures {

struct Picture {
    const char* name;
    QPixmap (*take)(Studio&);  // begins with a set or an empty list of its own
};

// Of screen 0150 and its dialogs; of the screens around it and the whole terminal; in English.
std::vector<Picture> OwnPictures();
std::vector<Picture> PicturesAround();
std::vector<Picture> EnglishPictures();

}  // namespace jogeon::pictures
