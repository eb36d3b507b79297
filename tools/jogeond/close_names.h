// Which of the names that exist a mistyped one may have meant.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

// The names that contain `wanted`, or that few changes make of it, the closest first, `most` of them at most.
std::vector<std::string> CloseNames(const std::vector<std::string>& names, std::string_view wanted,
                                    std::size_t most);

}  // namespace jogeon
