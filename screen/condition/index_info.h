// One indicator of the tree, or one condition of the list: head, parameters, and the texts made of them.
//
// An instance owns its fields; those of the catalogue's tree have none (m_pFields is null). The packet is
// built from m_RoleValues, which follow the fields when the panel commits, when a stored text or block is
// decoded, and in ApplyBarsAgo.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screen/condition/index_field.h"
#include "screen/host/services.h"

namespace jogeon {

// m_nKind of every indicator that the catalogue brings; a group node has kKindGroup.
inline constexpr int kKindBlackBox = 9;
inline constexpr int kKindGroup = -1;

class CIndexInfo {
public:
    int m_nIndexNo = -1;
    int m_bHasSelector = 0;               // once set it stays, whatever is copied in
    std::vector<std::string> m_ArgLists;  // per variant: `^` list of the field ids that fill the format
    std::vector<std::string> m_Formats;   // per variant: text with a %s for each argument
    std::string m_strKey;
    std::string m_strName;
    std::string m_strTitle;
    std::string m_strExtra;
    int m_nKind = kKindGroup;
    int m_bLeaf = 0;
    void* m_hTreeItem = nullptr;  // the CatalogueNode it is shown at

    // Values of the fixed panel, which serves kinds other than 9. They are carried along.
    int m_nPeriod = 0;
    int m_nBarsBefore = 0;
    int m_nBarCount = 1;
    int m_nRangeType = 0;
    int m_nHitCount = 1;
    int m_nHitType = 0;
    std::array<std::string, 10> m_strFixedValues;

    std::string m_strDescription;
    std::map<int, std::string> m_RoleValues;  // role to value code
    std::unique_ptr<FieldArray> m_pFields;
    int m_bShowValue = 0;
    int m_bChecked = 0;
    char m_chLetter = 'A';

    CIndexInfo() = default;
    CIndexInfo(const CIndexInfo& other);
    CIndexInfo& operator=(const CIndexInfo& other);
    CIndexInfo(CIndexInfo&&) = default;
    ~CIndexInfo() = default;

    // Replaces the fields by copies of `source`, or by none for null. `source` may be the own fields.
    void CopyFields(const FieldArray* source);

    // Both arguments hold one entry for each variant, joined by `|`.
    void SetTemplates(std::string_view formats, std::string_view argLists);

    const std::string& GetDescription() const { return m_strDescription; }

    // The number with the selector's option added to it.
    int GetEffectiveIndexNo() const;

    // Makes m_strDescription of the format and the display texts. False, and nothing done, without fields.
    // With more than 18 arguments the description stays as it was.
    bool BuildDescription();

    // The stored values as "role^code|role^code", those of the selected variant only.
    std::string GetValueText() const;

    // Takes such a text into the fields and m_RoleValues. Nothing happens without fields.
    void SetValueText(std::string_view text);

    // Changes how many bars ago the condition looks: mode 1 adds `amount`, 2 subtracts, any other sets it.
    // A result outside 0 to 99 is told the user and refused: false, nothing changed.
    bool ApplyBarsAgo(int amount, int mode, host::Questions& questions);

private:
    const CIndexField* Selector(std::size_t start = 0) const;
};

// `format` with its %s replaced by `arguments` in order, %% by %; every other byte stays, and a %s without
// an argument gives nothing.
std::string FormatDescription(std::string_view format, const std::vector<std::string>& arguments);

}  // namespace jogeon
