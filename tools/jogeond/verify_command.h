// `jogeond verify`: reads every byte of a market file and says whether it is whole.
#pragma once

#include <string>
#include <vector>

namespace jogeon {

// The exit status: 0 whole, 2 damaged or wrong use, after one line that says so.
int RunVerify(const std::vector<std::string>& args);

}  // namespace jogeon
