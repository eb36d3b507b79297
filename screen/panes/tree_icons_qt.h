// The pictures of the tree pane, drawn at whatever size and density they are shown, in the screen's colours.
#pragma once

#include <QIcon>

namespace jogeon {

// The picture of a node whose picture at rest is `image` of catalogue.h; selected it looks different. A group
// that is open has its selected picture too.
QIcon TreeIcon(int image);

// A magnifying glass.
QIcon FindIcon();

}  // namespace jogeon
