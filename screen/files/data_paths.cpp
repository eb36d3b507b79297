#include "screen/files/data_paths.h"

#include <algorithm>

#include "screen/files/profile_text.h"
#include "screen/host/shared_tags.h"

namespace jogeon {
namespace {

constexpr std::string_view kDefaultUserId = "nv3787";
constexpr std::size_t kMostIdBytes = 8;

}  // namespace

std::filesystem::path GetHomePath(host::LinkStore& links) {
    const std::filesystem::path configuration = links.ConfigurationFolder();
    const char* key = links.NVLink_GetMaeCheGB(0) == "44" ? "MINIPATH" : "HTSPATH";
    return ReadProfileText(configuration / "Norvik.ini", "Path", key);
}

std::filesystem::path GetDataFilePath(host::LinkStore& links, const std::filesystem::path& folder,
                                      const std::filesystem::path& file) {
    const std::filesystem::path path = GetHomePath(links) / folder;
    return file.empty() ? path : path / file;
}

bool IsUserId(std::string_view id) {
    const auto allowed = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
    };
    return !id.empty() && id.size() <= kMostIdBytes && std::all_of(id.begin(), id.end(), allowed);
}

std::string GetUserId(host::LinkStore& links) {
    int found = 0;
    std::string id = links.NVLink_GetLinkTagData(host::tags::kUserKey, host::tags::kUserTag, &found);
    return IsUserId(id) ? id : std::string(kDefaultUserId);
}

}  // namespace jogeon
