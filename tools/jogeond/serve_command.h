// jogeond serve: the service as a process of its own, for the terminals of this machine.
#pragma once

#include <string>
#include <vector>

namespace jogeon {

// Serves until it is asked to end. One line on standard output tells the address once calls are answered,
// everything else goes to standard error. Returns the exit code: 0 when it ended as asked, 2 when it couldn't
// start.
int RunServe(const std::vector<std::string>& args);

}  // namespace jogeon
