#include "screen/saved/saved_condition_file.h"

#include <algorithm>
#include <optional>
#include <set>

#include "screen/condition/token_list.h"
#include "screen/expression/letter_edits.h"
#include "screen/files/ini_mem_file.h"
#include "screen/saved/saved_condition_keys.h"
#include "screen/text/bytes.h"

namespace jogeon {

using namespace saved_condition;

namespace {

bool IsSet(const std::string& token) {
    return !token.empty() && token.front() == '1';
}

// The sections that hold sets, from `first` on. The version's is none wherever it stands, and a repeated name
// is the same set again.
std::vector<std::string> SetSections(const CIniMemFile& file, std::size_t first) {
    std::vector<std::string> sections;
    file.GetSections(sections);
    std::vector<std::string> names;
    std::set<std::string> seen = {std::string(kVersionSection)};
    for (std::size_t i = first; i < sections.size(); ++i) {
        if (seen.insert(sections[i]).second) names.push_back(sections[i]);
    }
    return names;
}

void ReadTarget(const CIniMemFile& file, const std::string& section, TargetFields& target) {
    const auto number = [&](const NumberKey& key) {
        target.*key.member = static_cast<int>(file.GetInt(section, key.key, 0));
    };
    std::for_each(std::begin(kUniverse), std::end(kUniverse), number);
    std::for_each(std::begin(kRestrictions), std::end(kRestrictions), number);
    target.Acc = file.GetString(section, kAcc, "");
    const CTokenList codes(file.GetString(section, kGroup, ""), '|');
    for (const std::string& code : codes.Tokens()) target.Group.push_back(RightIn(code, kGroupCodeWidth));
}

// The letter of a line; none where a damaged file has something else in its place.
std::optional<char> ReadLetter(const CTokenList& line) {
    const std::string& letter = line.GetToken(kLetter);
    if (letter.empty() || letter.front() < 'A' || letter.front() > 'Z') return std::nullopt;
    return letter.front();
}

// The condition of a line; null if the catalogue doesn't have its indicator.
std::unique_ptr<CIndexInfo> ReadCondition(const CTokenList& line, const Catalogue& catalogue) {
    auto condition = catalogue.MakeCondition(line.GetToken(kIndicator));
    if (!condition) return nullptr;
    if (const auto letter = ReadLetter(line)) condition->m_chLetter = *letter;
    condition->m_bChecked = IsSet(line.GetToken(kChecked)) ? 1 : 0;
    condition->m_bShowValue = IsSet(line.GetToken(kShowValue)) ? 1 : 0;
    condition->SetValueText(line.GetToken(kValues));
    return condition;
}

// Reads the expression and the lines of a set. A condition that can't be made leaves no trace in either.
void ReadConditions(const CIniMemFile& file, const std::string& section, const Catalogue& catalogue,
                    CSavedIndexInfo& info) {
    info.Exp = file.GetString(section, kExp, "");
    const int count = std::clamp(static_cast<int>(file.GetInt(section, kCount, 0)), 0, kMostLines);
    for (int i = 0; i < count; ++i) {
        const CTokenList line(file.GetString(section, ZeroPadded(i, 2), ""), ';');
        if (auto condition = ReadCondition(line, catalogue)) {
            info.m_Conditions.push_back(std::move(condition));
            continue;
        }
        if (const auto letter = ReadLetter(line)) info.Exp = RemoveLetterFromExpression(info.Exp, *letter);
    }
    info.Count = static_cast<int>(info.m_Conditions.size());
    if (count > 0 && info.Count == 0) info.Exp.clear();
    info.m_bWhole = info.Count == count;
}

std::shared_ptr<CSavedIndexInfo> ReadSet(const CIniMemFile& file, const std::string& section,
                                         const Catalogue& catalogue) {
    auto info = std::make_shared<CSavedIndexInfo>();
    info->m_strKey = section;
    info->Name = file.GetString(section, kName, "");
    info->TypePosition = static_cast<int>(file.GetInt(section, kTypePosition, 1));
    ReadTarget(file, section, *info);
    ReadConditions(file, section, catalogue, *info);
    return info;
}

std::string VersionIn(const CIniMemFile& file) {
    const std::string swapped = file.GetString(kVersionKey, kVersionSection, kNoVersion);
    return file.GetString(kVersionSection, kVersionKey, swapped);
}

}  // namespace

std::filesystem::path SavedConditionPath(const std::filesystem::path& home, std::string_view userId) {
    return home / "User" / std::string(userId).append("_SaveIndex.dat");
}

std::filesystem::path VendorConditionPath(const std::filesystem::path& home) {
    return home / "System" / "NorvikSaveIndex.dat";
}

SavedConditionFile LoadSavedConditions(const std::filesystem::path& file, const Catalogue& catalogue) {
    const CIniMemFile ini(file.string(), 1);
    SavedConditionFile loaded;
    loaded.version = VersionIn(ini);
    for (const std::string& section : SetSections(ini, 1)) {
        loaded.sets.push_back(ReadSet(ini, section, catalogue));
    }
    return loaded;
}

SavedSets LoadVendorConditions(const std::filesystem::path& file, const Catalogue& catalogue) {
    const CIniMemFile ini(file.string(), 1);
    SavedSets sets;
    for (const std::string& section : SetSections(ini, 0)) {
        auto info = std::make_shared<CSavedIndexInfo>();
        info->m_bVendorSet = 1;
        info->m_strKey = section;
        info->Name = ini.GetString(section, kName, "");
        ReadConditions(ini, section, catalogue, *info);
        sets.push_back(std::move(info));
    }
    return sets;
}

std::shared_ptr<CSavedIndexInfo> OpenSavedCondition(const std::filesystem::path& file, std::string_view key,
                                                    const Catalogue& catalogue) {
    const CIniMemFile ini(file.string(), 1);
    for (const std::string& section : SetSections(ini, 1)) {
        if (section == key) return ReadSet(ini, section, catalogue);
    }
    return nullptr;
}

std::vector<SavedSetName> ListSavedSets(const std::filesystem::path& file) {
    const CIniMemFile ini(file.string(), 1);
    std::vector<SavedSetName> sets;
    for (const std::string& section : SetSections(ini, 1)) {
        sets.push_back({section, ini.GetString(section, kName, "")});
    }
    return sets;
}

std::string ReadVersion(const std::filesystem::path& file) {
    return VersionIn(CIniMemFile(file.string(), 1));
}

}  // namespace jogeon
