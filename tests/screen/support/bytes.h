// Bytes as a test writes them: hexadecimal pairs, or text with bars between its fields.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace jogeon::test {

// The bytes of hexadecimal pairs, with blanks and line ends between them where they help.
inline std::string Hex(std::string_view pairs) {
    std::string digits;
    for (const char c : pairs) {
        if (c != ' ' && c != '\n') digits.push_back(c);
    }
    if (digits.size() % 2 != 0) throw std::invalid_argument("an odd number of hexadecimal digits");
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

// The bytes of `marked` without the bars that stand between its fields.
inline std::string Fields(std::string marked) {
    std::erase(marked, '|');
    return marked;
}

// `count` blanks: the filling of most fields.
inline std::string Blanks(std::size_t count) {
    return std::string(count, ' ');
}

}  // namespace jogeon::test
