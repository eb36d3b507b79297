#include "tools/jogeond/condition_source.h"

#include <algorithm>
#include <vector>

#include "screen/condition/token_list.h"
#include "screen/files/ini_mem_file.h"
#include "screen/saved/saved_condition_file.h"
#include "screen/saved/saved_condition_keys.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "tools/jogeond/close_names.h"

namespace jogeon {
namespace {

namespace keys = saved_condition;

constexpr std::size_t kSuggestions = 5;

std::string Quoted(const std::string& text) {
    return "\"" + text + "\"";
}

// Readers drop a condition whose indicator they don't know; the file's own count tells.
void DemandWhole(const CSavedIndexInfo& set, const std::filesystem::path& file) {
    const CIniMemFile ini(file.string(), 1);
    const int written = static_cast<int>(ini.GetInt(set.m_strKey, keys::kCount, 0));
    const std::string which = file.string() + ": set " + Quoted(ToUtf8(set.Name));
    if (written <= 0) throw NoConditions(which + " has no conditions");
    if (set.Count != written)
        throw NoConditions(which + " has " + Decimal(written - set.Count) + " of " + Decimal(written) +
                           " conditions on an indicator that the catalogue doesn't have");
}

void ReadTarget(const CIniMemFile& file, CSavedIndexInfo& set) {
    const std::string& section = set.m_strKey;
    const auto number = [&](const keys::NumberKey& key) {
        set.*key.member = static_cast<int>(file.GetInt(section, key.key, 0));
    };
    std::for_each(std::begin(keys::kUniverse), std::end(keys::kUniverse), number);
    std::for_each(std::begin(keys::kRestrictions), std::end(keys::kRestrictions), number);
    set.Acc = file.GetString(section, keys::kAcc, "");
    const CTokenList codes(file.GetString(section, keys::kGroup, ""), '|');
    for (const std::string& code : codes.Tokens()) set.Group.push_back(RightIn(code, keys::kGroupCodeWidth));
}

const std::shared_ptr<CSavedIndexInfo>* FindByName(const SavedSets& sets, const std::string& name) {
    const auto found =
        std::find_if(sets.begin(), sets.end(), [&name](const auto& set) { return set->Name == name; });
    return found == sets.end() ? nullptr : &*found;
}

[[noreturn]] void FailUnknown(const std::string& name, const SavedSets& user, const SavedSets& vendor,
                              const std::filesystem::path& home) {
    std::vector<std::string> names;
    for (const SavedSets* sets : {&user, &vendor})
        for (const auto& set : *sets) names.push_back(ToUtf8(set->Name));
    const std::vector<std::string> close = CloseNames(names, name, kSuggestions);
    std::string line = "no set " + Quoted(name);
    if (close.empty())
        line += " in " + home.string() + ", which has " + Decimal(static_cast<int>(names.size()));
    else
        line += "; close to it: " + Join(close, ", ");
    throw NoConditions(line);
}

}  // namespace

std::shared_ptr<CSavedIndexInfo> FindSet(const std::filesystem::path& home, const std::string& user,
                                         const std::string& name, const Catalogue& catalogue) {
    const std::filesystem::path userFile = SavedConditionPath(home, user);
    const std::filesystem::path vendorFile = VendorConditionPath(home);
    const SavedSets own = LoadSavedConditions(userFile, catalogue).sets;
    const SavedSets vendor = LoadVendorConditions(vendorFile, catalogue);
    const std::string wanted = ToCp949(name);
    if (const auto* set = FindByName(own, wanted)) {
        DemandWhole(**set, userFile);
        return *set;
    }
    if (const auto* set = FindByName(vendor, wanted)) {
        DemandWhole(**set, vendorFile);
        return *set;
    }
    if (auto set = OpenSavedCondition(userFile, name, catalogue)) {
        DemandWhole(*set, userFile);
        return set;
    }
    FailUnknown(name, own, vendor, home);
}

std::shared_ptr<CSavedIndexInfo> ReadConditionsFile(const std::filesystem::path& file,
                                                    const Catalogue& catalogue) {
    CIniMemFile ini(1);
    if (!ini.LoadIniFile(file.string(), 1))
        throw NoConditions(file.string() + ": no file with a set of conditions");
    std::vector<std::string> sections;
    ini.GetSections(sections);
    const bool versioned = sections.front() == keys::kVersionSection || sections.front() == keys::kVersionKey;
    const SavedSets sets =
        versioned ? LoadSavedConditions(file, catalogue).sets : LoadVendorConditions(file, catalogue);
    if (sets.empty()) throw NoConditions(file.string() + ": there is no set behind its version");
    if (!versioned) ReadTarget(ini, *sets.front());
    sets.front()->m_bVendorSet = 0;
    DemandWhole(*sets.front(), file);
    return sets.front();
}

}  // namespace jogeon
