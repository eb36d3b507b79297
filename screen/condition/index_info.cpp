#include "screen/condition/index_info.h"

#include <algorithm>
#include <climits>
#include <unordered_map>

#include "screen/condition/token_list.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr int kMostArguments = 18;
constexpr int kMostBarsAgo = 99;

// What a field contributes to the description. A field that can be switched off by -1 says so in words.
std::string Argument(const CIndexField& field) {
    static const std::string kUnused = "사용안함"_cp949;
    std::string text(TrimLeft(field.GetDisplayText()));
    const bool canBeUnused = field.m_strItems.find(kUnused) != std::string::npos;
    return canBeUnused && text == "-1" ? kUnused : text;
}

std::vector<std::string> Arguments(const FieldArray& fields, const CTokenList& ids) {
    std::unordered_map<int, const CIndexField*> byId;
    for (const auto& field : fields) byId[field->m_nId] = field.get();
    std::vector<std::string> arguments;
    for (const std::string& id : ids.Tokens()) {
        const auto found = byId.find(Atoi(id));
        arguments.push_back(found == byId.end() ? std::string() : Argument(*found->second));
    }
    return arguments;
}

std::string VariantText(const std::vector<std::string>& texts, int variant) {
    const auto index = static_cast<std::size_t>(variant);  // -1, no choice yet, lies behind any array
    return index < texts.size() ? texts[index] : std::string();
}

}  // namespace

CIndexInfo::CIndexInfo(const CIndexInfo& other) : CIndexInfo() {
    *this = other;
}

CIndexInfo& CIndexInfo::operator=(const CIndexInfo& other) {
    if (this == &other) return *this;
    m_nIndexNo = other.m_nIndexNo;
    m_bHasSelector = m_bHasSelector || other.m_bHasSelector;
    m_ArgLists = other.m_ArgLists;
    m_Formats = other.m_Formats;
    m_strKey = other.m_strKey;
    m_strName = other.m_strName;
    m_strTitle = other.m_strTitle;
    m_strExtra = other.m_strExtra;
    m_nKind = other.m_nKind;
    m_bLeaf = other.m_bLeaf;
    m_hTreeItem = other.m_hTreeItem;
    m_nPeriod = other.m_nPeriod;
    m_nBarsBefore = other.m_nBarsBefore;
    m_nBarCount = other.m_nBarCount;
    m_nRangeType = other.m_nRangeType;
    m_nHitCount = other.m_nHitCount;
    m_nHitType = other.m_nHitType;
    m_strFixedValues = other.m_strFixedValues;
    m_strDescription = other.m_strDescription;
    m_RoleValues = other.m_RoleValues;
    CopyFields(other.m_pFields.get());
    m_bShowValue = other.m_bShowValue;
    m_bChecked = other.m_bChecked;
    m_chLetter = other.m_chLetter;
    return *this;
}

void CIndexInfo::CopyFields(const FieldArray* source) {
    std::unique_ptr<FieldArray> copies;
    if (source) {
        copies = std::make_unique<FieldArray>();
        for (const auto& field : *source) copies->push_back(std::make_unique<CIndexField>(*field));
    }
    m_pFields = std::move(copies);
    if (m_pFields && Selector()) m_bHasSelector = 1;
}

void CIndexInfo::SetTemplates(std::string_view formats, std::string_view argLists) {
    m_Formats = CTokenList(formats, '|').Tokens();
    m_ArgLists = CTokenList(argLists, '|').Tokens();
}

const CIndexField* CIndexInfo::Selector(std::size_t start) const {
    return m_pFields ? FindFieldByRole(*m_pFields, kRoleSelector, start) : nullptr;
}

int CIndexInfo::GetEffectiveIndexNo() const {
    const CIndexField* selector = m_bHasSelector ? Selector() : nullptr;
    if (!selector) return m_nIndexNo;
    const long long number = static_cast<long long>(m_nIndexNo) + selector->m_nSelected;
    return static_cast<int>(std::clamp<long long>(number, INT_MIN, INT_MAX));  // both come from files
}

bool CIndexInfo::BuildDescription() {
    if (!m_pFields) return false;
    const CIndexField* selector = m_bHasSelector ? Selector() : nullptr;
    const int variant = selector ? selector->m_nSelected : 0;
    const CTokenList ids(VariantText(m_ArgLists, variant), '^');
    if (ids.GetCount() <= kMostArguments) {
        m_strDescription = FormatDescription(VariantText(m_Formats, variant), Arguments(*m_pFields, ids));
    }
    return true;
}

bool CIndexInfo::ApplyBarsAgo(int amount, int mode, host::Questions& questions) {
    CIndexField* field = m_pFields ? FindFieldByRole(*m_pFields, kRoleBarsAgo) : nullptr;
    if (field) {
        const long long change = amount;
        const int current = Atoi(field->GetDisplayText());
        const long long bars = mode == 1 ? current + change : mode == 2 ? current - change : change;
        if (bars < 0 || bars > kMostBarsAgo) {
            questions.Ask({"봉전기준 값의 범위는 0부터 99까지입니다."_cp949, "봉전기준 범위"_cp949});
            return false;
        }
        const std::string code = Decimal(static_cast<int>(bars));
        field->SetValue(code);
        m_RoleValues[kRoleBarsAgo] = code;
    }
    BuildDescription();
    return true;
}

std::string FormatDescription(std::string_view format, const std::vector<std::string>& arguments) {
    std::string out;
    std::size_t used = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char next = format[i] == '%' && i + 1 < format.size() ? format[i + 1] : '\0';
        if (next != 's' && next != '%') {
            out += format[i];
            continue;
        }
        if (next == '%') {
            out += '%';
        } else if (used < arguments.size()) {
            out += arguments[used++];
        }
        ++i;
    }
    return out;
}

}  // namespace jogeon
