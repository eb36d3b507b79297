#include "tools/jogeond/shared_options.h"

#include <algorithm>
#include <cstdlib>

namespace jogeon {
namespace {

constexpr char kHomeVariable[] = "JOGEON_HOME_DATA";
constexpr std::size_t kMaxUserId = 8;

// The id is part of a file name.
bool IsUserId(std::string_view id) {
    return !id.empty() && id.size() <= kMaxUserId && std::all_of(id.begin(), id.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
    });
}

std::string DefaultHome() {
    if (const char* home = std::getenv(kHomeVariable)) return home;
#ifdef JOGEON_HOME_DATA
    return JOGEON_HOME_DATA;
#else
    return {};
#endif
}

}  // namespace

std::string UserOption(const Options& options, std::string_view missing) {
    std::string user = options.Get("--user", missing);
    if (!IsUserId(user)) throw BadOptions("--user needs 1 to 8 letters, digits or _");
    return user;
}

std::filesystem::path HomeOption(const Options& options) {
    const std::string home = options.Get("--home", DefaultHome());
    if (home.empty()) throw BadOptions("where is the catalogue? --home DIR says it");
    return home;
}

}  // namespace jogeon
