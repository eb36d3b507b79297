// The command line of jogeond serve.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tools/jogeond/options.h"

namespace jogeon {

struct ServeArguments {
    bool help = false;
    std::filesystem::path market;  // empty: the generated market
    std::filesystem::path store;
    int port = 0;  // 0: any that is free
};

// Throws BadOptions, or remote::BadAddress.
ServeArguments ParseServeArguments(const std::vector<std::string>& args);

extern const char kServeHelp[];

}  // namespace jogeon
