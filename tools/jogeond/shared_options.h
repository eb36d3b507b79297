// Options that several commands have: whose, and with which catalogue.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "tools/jogeond/options.h"

namespace jogeon {

// --user, `missing` without it. Throws BadOptions for what is no user id.
std::string UserOption(const Options& options, std::string_view missing);

// --home: the folder that has System in it; without it what JOGEON_HOME_DATA says, else where the data files
// were built or installed. Throws BadOptions where nothing tells.
std::filesystem::path HomeOption(const Options& options);

// --store; without it the store of the terminal with this home, or of the terminal's own home.
std::filesystem::path StoreOption(const Options& options);

// The home folder that the terminal keeps for this computer's user.
std::filesystem::path OwnHome();

}  // namespace jogeon
