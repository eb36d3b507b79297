// Where the layouts of the result grid lie: the user's own, and the template that he starts from.
#pragma once

#include <string>

#include "screen/host/services.h"
#include "screen/results/grid_layout.h"

namespace jogeon {

std::filesystem::path UserLayoutPath(host::LinkStore& links, const std::string& userId);
std::filesystem::path TemplateLayoutPath(host::LinkStore& links);

// The user's layout, or the template if he has no file; empty for a file that can't be read.
GridLayout LoadGridLayout(host::LinkStore& links, const std::string& userId);

}  // namespace jogeon
