#include "tools/jogeond/sets_parameters.h"

#include <algorithm>
#include <utility>

#include "screen/condition/token_list.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "tools/jogeond/sets_words.h"

namespace jogeon::sets_text {
namespace {

// The words for names: a name that isn't plain, or stands twice, has the word `other` makes of its place.
template <typename Other>
std::vector<std::string> WordsFor(const std::vector<std::string>& names, Other other) {
    std::vector<std::string> words;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool single = std::count(names.begin(), names.end(), names[i]) == 1;
        words.push_back(single && IsPlain(names[i]) ? names[i] : other(i));
    }
    return words;
}

std::vector<std::string> Utf8Tokens(const std::string& list) {
    std::vector<std::string> names;
    const CTokenList tokens(list, '|');
    for (const std::string& token : tokens.Tokens()) names.push_back(ToUtf8(token));
    return names;
}

bool IsNumberLike(std::string_view value) {
    const auto fits = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '.' ||
               c == '-' || c == '+';
    };
    return !value.empty() && std::all_of(value.begin(), value.end(), fits);
}

std::string UnnamedRole(int role) {
    return "#" + Decimal(role);
}

Parameter ParameterOf(const CIndexField& field) {
    Parameter parameter;
    parameter.role = field.m_nRole;
    parameter.codes = CTokenList(field.m_strCodes, '|').Tokens();
    std::vector<std::string> items = Utf8Tokens(field.m_strItems);
    items.resize(parameter.codes.size());
    parameter.choices = WordsFor(items, [&](std::size_t i) { return Quote(parameter.codes[i]); });
    parameter.bounded = field.m_bRange != 0;
    parameter.least = field.m_dMin;
    parameter.most = field.m_dMax;
    return parameter;
}

}  // namespace

bool IsPlain(std::string_view name) {
    return !name.empty() && name == Trim(name) && name.find_first_of("\"#,:=[]\t") == std::string_view::npos;
}

std::string Parameter::WriteValue(const std::string& value) const {
    const auto code = std::find(codes.begin(), codes.end(), value);
    if (code != codes.end()) return choices[static_cast<std::size_t>(code - codes.begin())];
    return codes.empty() && IsNumberLike(value) ? value : Quote(value);
}

std::string Parameter::ReadValue(std::string_view word) const {
    if (codes.empty()) {
        if (IsNumberLike(word)) return std::string(word);
        throw BadText(name + "=" + std::string(word) + " is no value");
    }
    const auto choice = std::find(choices.begin(), choices.end(), word);
    if (choice != choices.end()) return codes[static_cast<std::size_t>(choice - choices.begin())];
    throw BadText(name + " is one of " + Join(choices, ", ") + ", not \"" + std::string(word) + "\"");
}

std::vector<std::string> VariantsOf(const CIndexInfo& condition) {
    const CIndexField* selector = FindFieldByRole(*condition.m_pFields, kRoleSelector, 1);
    if (!selector) return {};
    return WordsFor(Utf8Tokens(selector->m_strItems),
                    [](std::size_t i) { return Decimal(static_cast<int>(i)); });
}

std::vector<Parameter> ParametersOf(const CIndexInfo& condition, int variant) {
    CIndexInfo chosen = condition;
    CIndexField* selector = FindFieldByRole(*chosen.m_pFields, kRoleSelector, 1);
    if (selector) selector->m_nSelected = variant;
    std::vector<Parameter> parameters;
    std::vector<std::string> names;
    std::string label;  // stands before the field that it names
    for (std::size_t i = 1; i < chosen.m_pFields->size(); ++i) {
        const CIndexField& field = *(*chosen.m_pFields)[i];
        if (field.m_nType == kFieldLabel) {
            label = ToUtf8(field.m_strValue);
            continue;
        }
        const std::string name = std::exchange(label, {});
        const bool active = !selector || ActiveFieldIds(*selector).contains(field.m_nId);
        if (!field.m_bStored || &field == selector || !active) continue;
        parameters.push_back(ParameterOf(field));
        names.push_back(name);
    }
    const std::vector<std::string> words =
        WordsFor(names, [&](std::size_t i) { return UnnamedRole(parameters[i].role); });
    for (std::size_t i = 0; i < words.size(); ++i) parameters[i].name = words[i];
    return parameters;
}

Parameter UnnamedParameter(int role) {
    Parameter parameter;
    parameter.role = role;
    parameter.name = UnnamedRole(role);
    return parameter;
}

}  // namespace jogeon::sets_text
