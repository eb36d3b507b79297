// Where the desktop's rules for data files of a user's programs put the terminal's home.
#include <cstdlib>

#include "tools/jogeond/shared_options.h"

namespace jogeon {

std::filesystem::path OwnHome() {
    const char* data = std::getenv("XDG_DATA_HOME");
    if (data && *data == '/') return std::filesystem::path(data) / "jogeon" / "home";
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home ? home : "") / ".local" / "share" / "jogeon" / "home";
}

}  // namespace jogeon
