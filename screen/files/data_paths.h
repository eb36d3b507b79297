// Where the screen's files lie: the home folder, and the files under it.
//
// Relies on the host's configuration file Norvik.ini, section "Path". Its paths are taken byte for byte as
// the platform writes them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "screen/host/services.h"

namespace jogeon {

inline constexpr std::string_view kUserFolder = "User";
inline constexpr std::string_view kSystemFolder = "System";

// The home folder of this kind of installation; empty where the configuration has none.
std::filesystem::path GetHomePath(host::LinkStore& links);

// The home folder, joined with `folder` and, unless it is empty, `file`.
std::filesystem::path GetDataFilePath(host::LinkStore& links, const std::filesystem::path& folder,
                                      const std::filesystem::path& file = {});

// Whether the text is 1 to 8 of [A-Za-z0-9_]: the id becomes part of file names.
bool IsUserId(std::string_view id);

// The logged-on user's id; "nv3787" where the host has none or an unusable one.
std::string GetUserId(host::LinkStore& links);

}  // namespace jogeon
