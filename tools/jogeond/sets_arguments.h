// The command line of jogeond sets.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tools/jogeond/options.h"
#include "tools/jogeond/sets_merge.h"

namespace jogeon {

enum class SetsAction { List, Export, Import };

struct SetsArguments {
    bool help = false;
    SetsAction action = SetsAction::List;
    std::string user;
    std::filesystem::path store;
    std::filesystem::path home;  // of the catalogue
    std::filesystem::path file;  // of the text; empty: standard input or output
    MergeMode mode = MergeMode::Add;
};

// Throws BadOptions.
SetsArguments ParseSetsArguments(const std::vector<std::string>& args);

extern const char kSetsHelp[];

}  // namespace jogeon
