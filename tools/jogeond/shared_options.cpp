#include "tools/jogeond/shared_options.h"

#include <cstdlib>

#include "screen/files/data_paths.h"
#include "server/store/condition_store.h"

namespace jogeon {
namespace {

constexpr char kHomeVariable[] = "JOGEON_HOME_DATA";

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

std::filesystem::path StoreOption(const Options& options) {
    if (options.Has("--store")) return options.Get("--store");
    return store::StorePath(options.Has("--home") ? std::filesystem::path(options.Get("--home")) : OwnHome());
}

}  // namespace jogeon
