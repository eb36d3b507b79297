// Writing of the saved-condition file.
#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "screen/files/ini_mem_file.h"
#include "screen/saved/saved_condition_file.h"
#include "screen/saved/saved_condition_keys.h"
#include "screen/text/bytes.h"

namespace jogeon {

using namespace saved_condition;

namespace {

// Texts may come from the server, and a line end in one would become lines of the file.
std::string OneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    return text;
}

std::string ConditionLine(const CIndexInfo& condition) {
    std::string line = condition.m_strKey;
    line.append(1, ';').append(1, condition.m_chLetter);
    line.append(1, ';').append(Decimal(condition.m_bChecked));
    line.append(1, ';').append(Decimal(condition.m_bShowValue));
    return line.append(1, ';').append(condition.GetValueText()).append(1, ';');
}

using SectionKeys = std::vector<std::pair<std::string, std::string>>;  // keys and values in order

SectionKeys KeysOf(const CIniMemFile& file, const std::string& section) {
    std::vector<std::string> names;
    file.GetKeys(section, names);
    SectionKeys keys;
    for (const std::string& name : names) keys.emplace_back(name, file.GetString(section, name, ""));
    return keys;
}

void WriteKeys(CIniMemFile& file, const std::string& section, const SectionKeys& keys) {
    for (const auto& [name, value] : keys) file.WriteString(section, name, value);
}

bool Save(CIniMemFile& ini, const std::filesystem::path& file) {
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);  // missing in a new home
    return ini.SaveIniFile(file.string()) != 0;
}

// Saves with the sets in the order of their numbers, behind the version.
bool SaveSorted(CIniMemFile& ini, const std::filesystem::path& file) {
    ini.SortSections();
    return Save(ini, file);
}

}  // namespace

void WriteCondition(const CSavedIndexInfo& info, bool keepSection, CIniMemFile& file) {
    const std::string& section = info.m_strKey;
    if (!keepSection) file.ClearSection(section);
    const auto number = [&](const NumberKey& key) { file.WriteInt(section, key.key, info.*key.member); };
    file.WriteString(section, kName, OneLine(info.Name));
    file.WriteInt(section, kTypePosition, info.TypePosition);
    std::for_each(std::begin(kUniverse), std::end(kUniverse), number);
    file.WriteString(section, kAcc, OneLine(info.Acc));
    std::string group;
    for (const std::string& code : info.Group) group.append(RightIn(code, kGroupCodeWidth)).append(1, '|');
    file.WriteString(section, kGroup, OneLine(group));
    std::for_each(std::begin(kRestrictions), std::end(kRestrictions), number);
    file.WriteString(section, kExp, OneLine(info.Exp));
    file.WriteInt(section, kCount, info.Count);
    int line = 0;
    for (const auto& condition : info.m_Conditions) {
        file.WriteString(section, ZeroPadded(line++, 2), OneLine(ConditionLine(*condition)));
    }
}

bool WriteCondition(const CSavedIndexInfo& info, bool keepSection, const std::filesystem::path& file,
                    std::string_view version) {
    CIniMemFile ini(file.string(), 1);
    StampVersion(ini, version);
    WriteCondition(info, keepSection, ini);
    return SaveSorted(ini, file);
}

bool DeleteConditionFromFile(std::string_view key, const std::filesystem::path& file,
                             std::string_view version) {
    CIniMemFile ini(file.string(), 1);
    StampVersion(ini, version);
    ini.DeleteSection(key);
    return SaveSorted(ini, file);
}

bool RewriteConditions(const SavedSets& sets, const std::filesystem::path& file, std::string_view version) {
    CIniMemFile ini(1);
    StampVersion(ini, version);
    for (const auto& set : sets) WriteCondition(*set, false, ini);
    return Save(ini, file);
}

// The keys move as they are: a line that this catalogue can't read stays with its set.
bool RenumberConditions(const std::vector<std::string>& numbers, const std::filesystem::path& file,
                        std::string_view version) {
    const CIniMemFile old(file.string(), 1);
    CIniMemFile ini(1);
    StampVersion(ini, version);
    int place = 0;
    for (const std::string& number : numbers) WriteKeys(ini, ZeroPadded(place++, 2), KeysOf(old, number));
    return Save(ini, file);
}

void StampVersion(CIniMemFile& file, std::string_view text) {
    const std::string version = OneLine(std::string(text));
    std::vector<std::string> sections;
    file.GetSections(sections);
    const std::set<std::string> names(sections.begin(), sections.end());
    if (!sections.empty() && sections.front() == kVersionSection && names.size() == sections.size()) {
        file.WriteString(kVersionSection, kVersionKey, version);
        return;
    }
    // A section can only be put at the end, so the sets are taken out and put back behind the version. That
    // also leaves one section for each name.
    std::map<std::string, SectionKeys> sets;
    for (const std::string& section : names) {
        if (section != kVersionSection && section != kVersionKey) sets[section] = KeysOf(file, section);
    }
    file.DeleteAllSections();
    file.WriteString(kVersionSection, kVersionKey, version);
    for (const auto& [section, keys] : sets) WriteKeys(file, section, keys);
}

}  // namespace jogeon
