// A selected stretch of a text, by the positions before its first and behind its last character.
#pragma once

namespace jogeon {

struct TextSelection {
    int start = 0;
    int end = 0;

    bool operator==(const TextSelection&) const = default;
};

}  // namespace jogeon
