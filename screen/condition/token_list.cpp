#include "screen/condition/token_list.h"

#include "screen/text/bytes.h"

namespace jogeon {

CTokenList::CTokenList(std::string_view text, char delimiter) : m_chDelimiter(delimiter) {
    SetText(text);
}

void CTokenList::SetText(std::string_view text) {
    m_Tokens.clear();
    if (text.empty()) return;
    std::size_t start = 0;
    for (std::size_t at; (at = text.find(m_chDelimiter, start)) != std::string_view::npos; start = at + 1) {
        m_Tokens.emplace_back(Trim(text.substr(start, at - start)));
    }
    const std::string_view last = Trim(text.substr(start));
    if (!last.empty() || m_Tokens.empty()) m_Tokens.emplace_back(last);
}

const std::string& CTokenList::GetToken(int index) const {
    static const std::string kNone;
    return index >= 0 && index < GetCount() ? m_Tokens[static_cast<std::size_t>(index)] : kNone;
}

int CTokenList::GetInt(int index) const {
    return Atoi(GetToken(index));
}

int CTokenList::Find(std::string_view text) const {
    for (int i = 0; i < GetCount(); ++i) {
        if (GetToken(i) == text) return i;
    }
    return -1;
}

}  // namespace jogeon
