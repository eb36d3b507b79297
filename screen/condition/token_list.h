// The splitter of every text of the condition files: one delimiter byte, tokens trimmed of white space.
//
// Empty tokens count, but for one behind the last delimiter. Reading past the end gives "" or 0.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

class CTokenList {
public:
    CTokenList(std::string_view text, char delimiter);

    // Takes effect with the next SetText.
    void SetDelimiter(char delimiter) { m_chDelimiter = delimiter; }
    void SetText(std::string_view text);

    int GetCount() const { return static_cast<int>(m_Tokens.size()); }
    const std::string& GetToken(int index) const;
    int GetInt(int index) const;

    // Index of the first token that equals `text`, -1 if none.
    int Find(std::string_view text) const;

    const std::vector<std::string>& Tokens() const { return m_Tokens; }

private:
    char m_chDelimiter;
    std::vector<std::string> m_Tokens;
};

}  // namespace jogeon
