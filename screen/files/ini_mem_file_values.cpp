// The part of CIniMemFile that reads, sets and removes values in memory.
#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <iterator>
#include <system_error>

#include "screen/files/ini_mem_file.h"

namespace {

// Callers of the older interface pass C strings; a text ends at its NUL here as well.
std::string_view UpToNul(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

// Six significant digits as "%g" gives them, whatever decimal sign the process's locale has.
std::string GeneralForm(double value) {
    char digits[32];
    const auto end = std::to_chars(digits, std::end(digits), value, std::chars_format::general, 6).ptr;
    return std::string(digits, end);
}

// atof without the locale.
double LeadingDouble(std::string_view text) {
    text = text.substr(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    if (text.starts_with('+')) text.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool outOfRange = result.ec == std::errc::result_out_of_range;
    return outOfRange ? std::strtod(std::string(text).c_str(), nullptr) : value;
}

}  // namespace

// --- Values

unsigned int CIniMemFile::GetInt(std::string_view section, std::string_view key, int defaultValue) const {
    const std::string* value = FindValue(section, key);
    if (!value || value->empty()) return static_cast<unsigned int>(defaultValue);
    const long number = std::strtol(value->c_str(), nullptr, 10);
    return static_cast<unsigned int>(static_cast<int>(std::clamp<long>(number, INT_MIN, INT_MAX)));
}

double CIniMemFile::GetDouble(std::string_view section, std::string_view key, double defaultValue) const {
    const std::string* value = FindValue(section, key);
    return value && !value->empty() ? LeadingDouble(*value) : defaultValue;
}

std::string CIniMemFile::GetString(std::string_view section, std::string_view key,
                                   std::string_view defaultValue) const {
    const std::string* value = FindValue(section, key);
    return value && !value->empty() ? *value : std::string(UpToNul(defaultValue));
}

void CIniMemFile::GetString(std::string_view section, std::string_view key, std::string_view defaultValue,
                            std::string& out) const {
    out = GetString(section, key, defaultValue);
}

void CIniMemFile::WriteInt(std::string_view section, std::string_view key, int value) {
    WriteString(section, key, std::to_string(value));
}

void CIniMemFile::WriteDouble(std::string_view section, std::string_view key, double value) {
    WriteString(section, key, GeneralForm(value));
}

void CIniMemFile::WriteString(std::string_view section, std::string_view key, std::string_view value) {
    section = UpToNul(section);
    key = UpToNul(key);
    Section* record = FindSection(section);
    if (!record) {
        m_SectionNames.emplace_back(section);
        record = &m_Sections[std::string(section)];
    }
    record->m_Values[std::string(key)] = UpToNul(value);
    if (m_bKeyOrder && FindKeyOrder(&record->m_Keys, key) < 0) record->m_Keys.emplace_back(key);
    m_bDirty = 1;
}

void CIniMemFile::WriteInt(std::string_view section, std::string_view key, int value, int defaultValue) {
    if (value != defaultValue) WriteInt(section, key, value);
    m_bDirty = 1;
}

void CIniMemFile::WriteDouble(std::string_view section, std::string_view key, double value,
                              double defaultValue) {
    if (value != defaultValue) WriteDouble(section, key, value);
    m_bDirty = 1;
}

void CIniMemFile::WriteString(std::string_view section, std::string_view key, std::string_view value,
                              std::string_view defaultValue) {
    if (UpToNul(value) != UpToNul(defaultValue)) WriteString(section, key, value);
    m_bDirty = 1;
}

// --- Enumerating

void CIniMemFile::GetSections(std::vector<std::string>& out) const {
    out = m_SectionNames;
}

void CIniMemFile::GetKeys(std::string_view section, std::vector<std::string>& out) const {
    out.clear();
    if (const Section* record = FindSection(section)) AppendKeys(*record, out);
}

void CIniMemFile::GetSortedKeys(std::string_view section, std::vector<std::string>& out) const {
    GetKeys(section, out);
    std::sort(out.begin(), out.end());
}

void CIniMemFile::GetAllKeys(std::vector<std::string>& out) const {
    out.clear();
    for (const auto& [name, section] : m_Sections) AppendKeys(section, out);
}

void CIniMemFile::AppendKeys(const Section& section, std::vector<std::string>& out) const {
    if (m_bKeyOrder) {
        out.insert(out.end(), section.m_Keys.begin(), section.m_Keys.end());
    } else {
        for (const auto& [key, value] : section.m_Values) out.push_back(key);
    }
}

// --- Removing

void CIniMemFile::DeleteSection(std::string_view section) {
    const auto found = m_Sections.find(UpToNul(section));
    if (found == m_Sections.end()) return;
    const auto name = std::find(m_SectionNames.begin(), m_SectionNames.end(), found->first);
    if (name != m_SectionNames.end()) m_SectionNames.erase(name);
    m_Sections.erase(found);
    m_bDirty = 1;
}

void CIniMemFile::ClearSection(std::string_view section) {
    Section* record = FindSection(section);
    if (!record || record->m_Values.empty()) return;
    *record = Section();
    m_bDirty = 1;
}

void CIniMemFile::DeleteKey(std::string_view section, std::string_view key) {
    Section* record = FindSection(section);
    if (!record) return;
    key = UpToNul(key);
    const auto found = record->m_Values.find(key);
    if (found != record->m_Values.end()) record->m_Values.erase(found);
    const int index = m_bKeyOrder ? FindKeyOrder(&record->m_Keys, key) : -1;
    if (index >= 0) record->m_Keys.erase(record->m_Keys.begin() + index);
    m_bDirty = 1;
}

void CIniMemFile::DeleteAllSections() {
    RemoveContents();
    m_bDirty = 1;
}

void CIniMemFile::SortSections() {
    const bool versionFirst = !m_SectionNames.empty() && m_SectionNames.front() == "Version";
    std::sort(m_SectionNames.begin() + (versionFirst ? 1 : 0), m_SectionNames.end());
}

// --- Looking up

int CIniMemFile::FindKeyOrder(const std::vector<std::string>* keys, std::string_view key) const {
    const auto found = std::find(keys->begin(), keys->end(), key);
    return found == keys->end() ? -1 : static_cast<int>(found - keys->begin());
}

CIniMemFile::Section* CIniMemFile::FindSection(std::string_view section) {
    const auto found = m_Sections.find(UpToNul(section));
    return found == m_Sections.end() ? nullptr : &found->second;
}

const CIniMemFile::Section* CIniMemFile::FindSection(std::string_view section) const {
    const auto found = m_Sections.find(UpToNul(section));
    return found == m_Sections.end() ? nullptr : &found->second;
}

const std::string* CIniMemFile::FindValue(std::string_view section, std::string_view key) const {
    const Section* record = FindSection(section);
    if (!record) return nullptr;
    const auto found = record->m_Values.find(UpToNul(key));
    return found == record->m_Values.end() ? nullptr : &found->second;
}
