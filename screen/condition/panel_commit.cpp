#include "screen/condition/panel_commit.h"

#include "screen/condition/panel_checks.h"
#include "screen/condition/token_list.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

bool HasOptions(int type) {
    return type == kFieldList || type == kFieldFreeCombo || type == kFieldSectorList ||
           type == kFieldRadios || type == kFieldRadioRows;
}

const CIndexField* SelectorOf(const FieldArray& fields) {
    return FindFieldByRole(fields, kRoleSelector, 1);
}

}  // namespace

int ChosenOption(const CIndexField& field) {
    if (field.m_pCombo) return field.m_pCombo->GetSelectedIndex();
    for (std::size_t i = 0; i < field.m_pRadios.size(); ++i) {
        if (field.m_pRadios[i] && field.m_pRadios[i]->GetCheck()) return static_cast<int>(i);
    }
    return -1;
}

// Typed text in a combo is no choice, and stays.
void ChooseInitialOption(CIndexField& field) {
    if (!HasOptions(field.m_nType) || (field.m_nType == kFieldFreeCombo && field.m_nSelected == -1)) return;
    if (field.m_nSelected == -1) field.m_nSelected = Atoi(field.m_strValue);
    const int count = CTokenList(field.m_strItems, '|').GetCount();
    if (field.m_nSelected < 0 || field.m_nSelected >= count) field.m_nSelected = 0;
}

void CommitValue(CIndexField& field) {
    switch (field.m_nType) {
        case kFieldValueLabel:
            if (field.m_pStatic) field.m_strValue = field.m_pStatic->GetText();
            break;
        case kFieldButton:
            if (field.m_pButton) field.m_strValue = field.m_pButton->GetText();
            break;
        case kFieldEdit:
            if (field.m_pEdit) field.m_strValue = Trim(field.m_pEdit->GetText());
            break;
        case kFieldSpin:
            if (field.m_pEdit) field.m_strValue = field.m_pEdit->GetText();
            break;
        case kFieldList:
        case kFieldSectorList:
        case kFieldFreeCombo:
            if (!field.m_pCombo) break;
            field.m_nSelected = field.m_pCombo->GetSelectedIndex();
            field.m_strValue = field.m_nType == kFieldFreeCombo && field.m_nSelected == -1
                                   ? field.m_pCombo->GetText()
                                   : field.m_pCombo->GetSelectedItemText();
            break;
        case kFieldRadios:
        case kFieldRadioRows: {
            const int chosen = ChosenOption(field);
            if (chosen < 0) break;
            field.m_nSelected = chosen;
            field.m_strValue = Decimal(chosen);
            break;
        }
        default:
            break;
    }
}

std::optional<CommitFault> CommitFields(CIndexInfo& head, std::unique_ptr<FieldArray>& fields,
                                        std::string& preview) {
    std::set<int> active;
    if (fields) {
        for (const auto& field : *fields) CommitValue(*field);
        if (const CIndexField* selector = SelectorOf(*fields)) {
            head.m_bHasSelector = 1;
            active = ActiveFieldIds(*selector);
        }
        for (std::size_t i = 1; i < fields->size(); ++i) {
            CIndexField& field = *(*fields)[i];
            if (!active.empty() && !active.contains(field.m_nId)) continue;
            std::optional<host::Box> box = CheckRange(field);
            if (!box) box = CheckEntry(field, head.m_strKey);
            if (box) return CommitFault{&field, *box};
        }
    }
    std::swap(head.m_pFields, fields);  // the description is that of the fields as the panel shows them
    preview = head.BuildDescription() ? head.m_strDescription : "[]";
    std::swap(head.m_pFields, fields);
    return std::nullopt;
}

void UpdateValues(const FieldArray& fields, CIndexInfo& info) {
    info.CopyFields(&fields);
    std::set<int> active;
    if (info.m_bHasSelector) {
        if (const CIndexField* selector = SelectorOf(fields)) active = ActiveFieldIds(*selector);
        info.m_RoleValues.clear();
    }
    for (const auto& field : fields) {
        if (!field->m_bStored || (info.m_bHasSelector && !active.contains(field->m_nId))) continue;
        info.m_RoleValues[field->m_nRole] = field->GetValueCode();
    }
}

FieldControl* EntryOf(const CIndexField& field) {
    for (FieldControl* control :
         {field.m_pEdit, field.m_pCombo, field.m_pCheck, field.m_pButton, field.m_pStatic}) {
        if (control) return control;
    }
    const int chosen = ChosenOption(field);
    return chosen >= 0 ? field.m_pRadios[static_cast<std::size_t>(chosen)] : nullptr;
}

}  // namespace jogeon
