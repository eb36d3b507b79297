#include "tools/jogeond/sets_condition.h"

#include <algorithm>
#include <cstdio>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "server/service/condition_set.h"
#include "tools/jogeond/sets_parameters.h"

namespace jogeon::sets_text {
namespace {

constexpr std::size_t kWireKey = condition_block::kKey.width;

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

// Family F tells its variant in a byte of its own.
int VariantOf(const DecodedBlock& block, const CIndexInfo& index) {
    return block.family == 'F' ? block.mode : block.number - index.m_nIndexNo;
}

void SetVariant(DecodedBlock& block, const CIndexInfo& index, int variant) {
    block.mode = block.family == 'F' ? variant : 0;
    block.number = index.m_nIndexNo + (block.family == 'F' ? 0 : variant);
}

std::string Entry(const Parameter& parameter, const std::string& value) {
    return parameter.name + "=" + parameter.WriteValue(value);
}

// "[골든크로스]" behind an indicator's name; its place among the variants.
int ReadVariant(Scanner& line, const std::vector<std::string>& variants, std::string_view indicator) {
    const bool given = line.Take('[');
    if (variants.empty()) {
        if (given) throw BadText(std::string(indicator) + " has no variants");
        return 0;
    }
    const std::string_view name = given ? line.UpTo("]") : std::string_view();
    if (given && !line.Take(']')) throw BadText("a ] is missing");
    const auto found = std::find(variants.begin(), variants.end(), name);
    if (found == variants.end())
        throw BadText(std::string(indicator) + " needs [one of " + Join(variants, ", ") + "] behind it");
    return static_cast<int>(found - variants.begin());
}

// The parameter that `name` means: one of the variant's, or a bare role.
Parameter ParameterNamed(const std::vector<Parameter>& parameters, std::string_view name) {
    for (const Parameter& parameter : parameters)
        if (parameter.name == name) return parameter;
    const int role = name.starts_with('#') ? Atoi(name.substr(1)) : 0;
    if (IsValueRole(role) && role != kRoleSelector) return UnnamedParameter(role);
    std::string known;
    for (const Parameter& parameter : parameters) known += (known.empty() ? "" : ", ") + parameter.name;
    throw BadText("there is no parameter " + Quoted(name) + "; there are " + known);
}

void WarnOfBounds(const Parameter& parameter, const std::string& value, std::vector<std::string>& warnings) {
    if (!parameter.bounded) return;
    const double number = Atof(value);
    if (!value.empty() && number >= parameter.least && number <= parameter.most) return;
    char bounds[64];
    std::snprintf(bounds, sizeof bounds, "%.10g to %.10g", parameter.least, parameter.most);
    warnings.push_back(Entry(parameter, value) + " is not within " + bounds);
}

// "이름=값, 이름=값" into the block's roles.
void ReadValues(Scanner& line, const std::vector<Parameter>& parameters, DecodedBlock& block,
                std::vector<std::string>& warnings) {
    do {
        const Parameter parameter = ParameterNamed(parameters, line.UpTo("=,"));
        if (!line.Take('=')) throw BadText(parameter.name + " has no value");
        const std::string value = line.AtQuote() ? line.TakeQuoted() : parameter.ReadValue(line.UpTo(","));
        if (!block.roles.emplace(parameter.role, value).second)
            throw BadText(parameter.name + " is given twice");
        WarnOfBounds(parameter, value, warnings);
    } while (line.Take(','));
    if (!line.AtEnd()) throw BadText("a comma is missing behind a value");
}

// A value that its slot can't hold comes back as another one; a blank slot comes back as none.
void CheckRoom(const DecodedBlock& block) {
    const DecodedBlock back = *DecodeConditionBlock(service::WriteBlock(block));
    for (const auto& [role, value] : block.roles) {
        const auto found = back.roles.find(role);
        const std::string kept = found == back.roles.end() ? std::string() : found->second;
        if (kept != value) throw BadText(Quoted(value) + " has no room where the indicator keeps it");
    }
}

}  // namespace

ConditionLines::ConditionLines(const Catalogue& catalogue) : catalogue_(catalogue) {
    for (const auto& index : catalogue.Indexes()) {
        if (!index->m_bLeaf || !catalogue.FindFieldsByKey(index->m_strKey)) continue;
        byWireKey_.emplace(index->m_strKey.substr(0, kWireKey), index.get());
        const auto [entry, isNew] = byName_.emplace(ToUtf8(index->m_strName), index.get());
        if (!isNew) entry->second = nullptr;
    }
}

std::string ConditionLines::NameOf(const CIndexInfo& index) const {
    const std::string name = ToUtf8(index.m_strName);
    return IsPlain(name) && byName_.at(name) ? name : index.m_strKey;
}

const CIndexInfo& ConditionLines::Named(std::string_view name) const {
    const auto found = byName_.find(name);
    if (found != byName_.end() && found->second) return *found->second;
    const auto byKey = byWireKey_.find(name.substr(0, kWireKey));
    if (byKey != byWireKey_.end() && byKey->second->m_strKey == name) return *byKey->second;
    throw BadText("there is no indicator " + Quoted(name));
}

std::string ConditionLines::Write(const DecodedBlock& block) const {
    const auto found = byWireKey_.find(block.key);
    if (found == byWireKey_.end()) throw BadText("the catalogue has no indicator " + Quoted(block.key));
    const CIndexInfo& index = *found->second;
    const auto condition = catalogue_.MakeCondition(index.m_strKey);
    const std::vector<std::string> variants = VariantsOf(*condition);
    const int variant = VariantOf(block, index);
    if (variant < 0 || variant >= std::max(static_cast<int>(variants.size()), 1))
        throw BadText("the catalogue has no such variant of " + NameOf(index));
    std::map<int, std::string> rest = block.roles;
    std::vector<std::string> entries;
    for (const Parameter& parameter : ParametersOf(*condition, variant)) {
        const auto value = rest.extract(parameter.role);
        entries.push_back(Entry(parameter, value ? value.mapped() : std::string()));
    }
    for (const auto& [role, value] : rest) entries.push_back(Entry(UnnamedParameter(role), value));
    std::string line = NameOf(index);
    if (!variants.empty()) line += " [" + variants[static_cast<std::size_t>(variant)] + "]";
    return entries.empty() ? line : line + ": " + Join(entries, ", ");
}

DecodedBlock ConditionLines::Read(std::string_view text, std::vector<std::string>& warnings) const {
    Scanner line(text);
    const std::string_view name = line.UpTo("[:");
    const CIndexInfo& index = Named(name);
    const auto condition = catalogue_.MakeCondition(index.m_strKey);
    DecodedBlock block;
    block.family = condition_block::FamilyLetter(index.m_strKey);
    block.key = index.m_strKey.substr(0, kWireKey);
    const int variant = ReadVariant(line, VariantsOf(*condition), name);
    SetVariant(block, index, variant);
    const std::vector<Parameter> parameters = ParametersOf(*condition, variant);
    if (line.Take(':')) ReadValues(line, parameters, block, warnings);
    if (!line.AtEnd()) throw BadText("a : must stand before the values");
    for (const Parameter& parameter : parameters)
        if (!block.roles.contains(parameter.role)) throw BadText(parameter.name + " is missing");
    CheckRoom(block);
    return block;
}

}  // namespace jogeon::sets_text
