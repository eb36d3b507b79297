#include "screen/condition/index_field.h"

#include "screen/condition/token_list.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

std::string TokenOf(const std::string& list, int index) {
    return CTokenList(list, '|').GetToken(index);
}

}  // namespace

bool IsValueRole(int role) {
    return role == kRoleSelector || role == 20 || role == kRoleBarsAgo || (role >= 40 && role <= 46) ||
           (role >= 50 && role <= 56) || (role >= 60 && role <= 62);
}

FieldControls& FieldControls::operator=(const FieldControls& other) {
    if (this == &other) return *this;
    m_pStatic = m_pEdit = m_pSpin = m_pCombo = m_pButton = m_pCheck = nullptr;
    m_hBitmap = nullptr;
    m_pRadios.clear();
    m_nRadioCount = 0;
    m_bCreated = 0;
    return *this;
}

// What stands in the field's control, or in the record where there is no control.
std::string CIndexField::Typed() const {
    const FieldControl* control = nullptr;
    switch (m_nType) {
        case kFieldValueLabel:
            control = m_pStatic;
            break;
        case kFieldEdit:
        case kFieldSpin:
            control = m_pEdit;
            break;
        case kFieldFreeCombo:
            control = m_pCombo;
            break;
        case kFieldButton:
            control = m_pButton;
            break;
        default:
            break;
    }
    return control ? control->GetText() : m_strValue;
}

std::string CIndexField::Option(const std::string& options) const {
    return TokenOf(options, m_nSelected);
}

int CIndexField::CheckState() const {
    return m_pCheck ? m_pCheck->GetCheck() : 0;
}

const FieldControl* CIndexField::SelectedRadio() const {
    const auto index = static_cast<std::size_t>(m_nSelected);  // -1 lies behind any array
    return index < m_pRadios.size() ? m_pRadios[index] : nullptr;
}

std::string CIndexField::GetValueCode() const {
    switch (m_nType) {
        case kFieldValueLabel:
        case kFieldEdit:
        case kFieldSpin:
        case kFieldButton:
            return Typed();
        case kFieldList:
        case kFieldSectorList:
            return Option(m_strCodes);
        case kFieldFreeCombo: {
            const std::string typed = Typed();
            const int option = CTokenList(m_strItems, '|').Find(typed);
            return option < 0 ? typed : TokenOf(m_strCodes, option);
        }
        case kFieldCheck:
            return Decimal(CheckState());
        case kFieldRadios:
        case kFieldRadioRows:
            if (m_nRole != kRoleSelector) return Option(m_strCodes);
            return Decimal(m_nSelected == -1 ? 0 : m_nSelected);
        case kFieldPicture:
            return m_strValue;
        default:
            return {};
    }
}

std::string CIndexField::GetDisplayText() const {
    switch (m_nType) {
        case kFieldValueLabel:
        case kFieldEdit:
        case kFieldSpin:
        case kFieldFreeCombo:
        case kFieldButton:
            return Typed();
        case kFieldList:
        case kFieldSectorList:
            return m_pCombo ? m_pCombo->GetSelectedItemText() : Option(m_strItems);
        case kFieldCheck:
            return Decimal(CheckState());
        case kFieldRadios:
        case kFieldRadioRows: {
            if (m_nRole == kRoleSelector) return {};
            const FieldControl* radio = SelectedRadio();
            return radio ? "<" + radio->GetText() + ">" : Option(m_strItems);
        }
        case kFieldPicture:
            return m_strValue;
        default:
            return {};
    }
}

void CIndexField::SetValue(std::string_view text) {
    const int option = CTokenList(m_strCodes, '|').Find(text);
    switch (m_nType) {
        case kFieldValueLabel:
        case kFieldEdit:
        case kFieldSpin:
        case kFieldButton:
        case kFieldPicture:
            m_strValue = text;
            break;
        case kFieldFreeCombo:
            if (option >= 0) m_nSelected = option;
            m_strValue = text;
            break;
        case kFieldCheck:
            if (m_pCheck) m_pCheck->SetCheck(Atoi(text));
            break;
        case kFieldRadios:
        case kFieldRadioRows:
            if (m_nRole == kRoleSelector) break;
            [[fallthrough]];
        case kFieldList:
        case kFieldSectorList:
            m_nSelected = option < 0 ? 0 : option;
            break;
        default:
            break;
    }
}

std::set<int> ActiveFieldIds(const CIndexField& selector) {
    std::set<int> ids;
    const CTokenList list(TokenOf(selector.m_strVariantFields, selector.m_nSelected), '^');
    for (const std::string& id : list.Tokens()) ids.insert(Atoi(id));
    return ids;
}

CIndexField* FindFieldByRole(const FieldArray& fields, int role, std::size_t start) {
    for (std::size_t i = start; i < fields.size(); ++i) {
        if (fields[i]->m_nRole == role) return fields[i].get();
    }
    return nullptr;
}

}  // namespace jogeon
