// The one complaint of a parse: what is wrong and which character it is about.
#pragma once

#include <string>
#include <string_view>

namespace jogeon {

struct S4PTERROR {
    const char* m_pBase = nullptr;      // start of the parsed text
    const char* m_pPosition = nullptr;  // null until an error is noted
    std::string m_strMessage;

    void Note(const char* position, std::string_view message) {
        m_pPosition = position;
        m_strMessage = message;
    }

    // Byte index of the error in the text, -1 if none is noted.
    int Index() const { return m_pPosition ? static_cast<int>(m_pPosition - m_pBase) : -1; }
};

}  // namespace jogeon
