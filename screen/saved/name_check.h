// What a new name of a saved set must be: some text, none that is in use, and one that fits its field.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

struct NameVerdict {
    std::optional<std::string> name;  // trimmed, CP949; none if it is refused
    std::string refusal;              // then what the user is told, CP949
};

// `used` is CP949. A character outside CP949 and a text of more than 80 bytes are refused, never cut.
NameVerdict CheckSavedName(std::string_view utf8, const std::vector<std::string>& used);

}  // namespace jogeon
