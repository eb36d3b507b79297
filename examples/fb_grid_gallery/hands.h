// The user's hands on a grid, for pictures of a page in use: the events are those of a mouse and a keyboard.
#pragma once

#include <screen/fbgrid/fb_grid_widget.h>

void DoubleClick(CFBGrid& grid, CCellID cell);
void Drag(CFBGrid& grid, CCellID from, CCellID to);
void PressKey(CFBGrid& grid, Qt::Key key);
