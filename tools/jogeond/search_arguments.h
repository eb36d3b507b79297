// The command line of jogeond search.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tools/jogeond/options.h"

namespace jogeon {

enum class OutputFormat { Table, Csv, Json };

struct SearchArguments {
    bool help = false;
    std::filesystem::path market;      // empty: the generated market
    std::string set;                   // UTF-8; name or number of a saved set, empty with `conditions`
    std::filesystem::path conditions;  // file with one set
    std::string user;
    std::filesystem::path home;
    int date = 0;  // yyyymmdd, 0 for the market's last day
    OutputFormat format = OutputFormat::Table;
};

// Throws BadOptions.
SearchArguments ParseSearchArguments(const std::vector<std::string>& args);

extern const char kSearchHelp[];

}  // namespace jogeon
