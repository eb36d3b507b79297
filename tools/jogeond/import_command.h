// jogeond import: makes a market file from the user's tables.
#pragma once

#include <string>
#include <vector>

namespace jogeon {

// Runs the command with the arguments behind "import". Reports on standard output and standard error, and
// returns the exit code: 0 when the market file was written, 2 when it wasn't.
int RunImport(const std::vector<std::string>& args);

}  // namespace jogeon
