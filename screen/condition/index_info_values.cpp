// The stored form of a condition's values: entries "role^code", joined by `|`.
#include <set>

#include "screen/condition/index_info.h"
#include "screen/condition/token_list.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

std::string Entry(int role, std::string_view code) {
    return Decimal(role).append(1, '^').append(code).append(1, '|');
}

// The first value of each role in the text.
std::map<int, std::string> ParseEntries(std::string_view text) {
    std::map<int, std::string> entries;
    const CTokenList list(text, '|');
    for (const std::string& entry : list.Tokens()) {
        const CTokenList parts(entry, '^');
        entries.emplace(parts.GetInt(0), parts.GetToken(1));
    }
    return entries;
}

}  // namespace

std::string CIndexInfo::GetValueText() const {
    if (!m_pFields) return {};
    std::string text;
    std::set<int> active;
    if (m_bHasSelector) {
        const CIndexField* selector = Selector(1);
        if (!selector) return {};
        text = Entry(kRoleSelector, TrimLeft(selector->GetValueCode()));
        active = ActiveFieldIds(*selector);
    }
    for (std::size_t i = 1; i < m_pFields->size(); ++i) {
        const CIndexField& field = *(*m_pFields)[i];
        if (!field.m_bStored || !IsValueRole(field.m_nRole)) continue;
        if (m_bHasSelector && !active.contains(field.m_nId)) continue;
        text += Entry(field.m_nRole, TrimLeft(field.GetValueCode()));
    }
    if (!text.empty()) text.pop_back();
    return text;
}

void CIndexInfo::SetValueText(std::string_view text) {
    if (!m_pFields) return;
    const std::map<int, std::string> entries = ParseEntries(text);
    std::set<int> active;
    if (m_bHasSelector) {
        if (CIndexField* selector = FindFieldByRole(*m_pFields, kRoleSelector)) {
            const auto chosen = entries.find(kRoleSelector);
            selector->m_nSelected = chosen == entries.end() ? -1 : Atoi(chosen->second);
            active = ActiveFieldIds(*selector);
        }
        m_RoleValues.clear();
    }
    for (const auto& field : *m_pFields) {
        if (!field->m_bStored || (m_bHasSelector && !active.contains(field->m_nId))) continue;
        const int role = field->m_nRole;
        const auto entry = entries.find(role);
        if (IsValueRole(role) && role != kRoleSelector) {
            field->SetValue(entry == entries.end() ? std::string() : entry->second);
        }
        m_RoleValues[role] = field->GetValueCode();
    }
}

}  // namespace jogeon
