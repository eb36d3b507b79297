// `jogeond sets`: lists, exports and imports the condition sets that the service stores for a user.
#pragma once

#include <string>
#include <vector>

namespace jogeon {

// Runs the command with the arguments behind "sets". Returns the exit code: 0, or 2 with nothing changed,
// after a line on standard error for each thing that is wrong.
int RunSets(const std::vector<std::string>& args);

}  // namespace jogeon
