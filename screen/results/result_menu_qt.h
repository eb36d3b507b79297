// The menu of the result grid.
#pragma once

#include <functional>

namespace jogeon {

class ResultGrid;
class ResultLinks;

// Shows the menu at a right click and the menu key, from now on. The links outlive the grid's events.
void GiveMenu(ResultGrid& grid, ResultLinks& links, std::function<void()> saveSheet);

}  // namespace jogeon
