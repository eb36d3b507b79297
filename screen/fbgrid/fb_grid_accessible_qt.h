// CFBGrid for assistive tools: a table of cells that can be read, focused, pressed and toggled.
//
// A cell's interface is made when a tool asks for it, so a grid that nobody asks costs nothing. The last few
// thousand are kept, and all go with the grid.
#pragma once

#include "screen/fbgrid/fb_cell.h"

class CFBGrid;

namespace jogeon {

// Makes Qt use it for every CFBGrid. Once is enough.
void InstallGridAccessibility();

// What has happened to a grid, for tools that listen; nothing is done if none does.
void AnnounceFocus(CFBGrid& grid, CCellID cell);
void AnnounceCell(CFBGrid& grid, CCellID cell);  // its text or check may have changed
void AnnounceReset(CFBGrid& grid);               // rows or columns have come or gone

}  // namespace jogeon
