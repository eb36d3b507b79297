// jogeond search: runs one search over a market and prints the stocks that match.
#pragma once

#include <string>
#include <vector>

namespace jogeon {

// Runs the command with the arguments behind "search". Stocks go to standard output, everything else to
// standard error. Returns the exit code: 0 when stocks were found, 1 when none matches, 2 when the command
// line is wrong or the search failed.
int RunSearch(const std::vector<std::string>& args);

}  // namespace jogeon
