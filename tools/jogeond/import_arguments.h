// The command line of jogeond import.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "server/market/import.h"
#include "tools/jogeond/options.h"

namespace jogeon {

struct ImportArguments {
    bool help = false;
    std::filesystem::path out;
    market::ImportOptions options;
};

// Throws BadOptions for an unknown or incomplete option, or when there is nothing to read or to write.
ImportArguments ParseImportArguments(const std::vector<std::string>& args);

extern const char kImportHelp[];

}  // namespace jogeon
