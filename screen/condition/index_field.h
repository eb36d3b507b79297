// One parameter of an indicator: its value, the options it offers and its place on the panel.
//
// Knows its live controls only through FieldControl, and works without any. Values and texts are CP949.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

// What a field needs of a control of the panel. The panel owns the controls.
class FieldControl {
public:
    virtual ~FieldControl() = default;

    virtual std::string GetText() const = 0;  // caption, label or edit text
    virtual int GetCheck() const = 0;         // 1 checked, 0 not
    virtual void SetCheck(int check) = 0;
    virtual std::string GetSelectedItemText() const = 0;  // of a drop-down list; empty if none is selected
    virtual int GetSelectedIndex() const = 0;             // the same; -1 if none is selected
    virtual void Focus() = 0;                             // takes the focus; an entry selects all its text
};

// Control types, m_nType. Any other number is a label that shows the value.
enum FieldType : int {
    kFieldLabel = 10,
    kFieldValueLabel = 20,
    kFieldEdit = 30,
    kFieldSpin = 31,
    kFieldList = 40,
    kFieldFreeCombo = 41,
    kFieldSectorList = 42,  // the market's sectors stand behind its own options
    kFieldButton = 50,
    kFieldCheck = 51,
    kFieldRadios = 60,
    kFieldRadioRows = 61,
    kFieldPicture = 70,
};

// Roles, m_nRole, that the code treats by name; the others are only slots of the packet.
inline constexpr int kRoleSelector = 10;
inline constexpr int kRoleBarsAgo = 30;

// Whether a value of this role is stored and sent: 10, 20, 30, 40 to 46, 50 to 56, 60 to 62.
bool IsValueRole(int role);

// A place on the panel, in pixels.
struct PanelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const PanelRect&) const = default;
};

// The live controls of a field, borrowed from the panel. They are never copied: a copy has none.
struct FieldControls {
    FieldControl* m_pStatic = nullptr;
    void* m_hBitmap = nullptr;  // the panel's handle of a loaded picture
    FieldControl* m_pEdit = nullptr;
    FieldControl* m_pSpin = nullptr;
    FieldControl* m_pCombo = nullptr;
    FieldControl* m_pButton = nullptr;
    FieldControl* m_pCheck = nullptr;
    std::vector<FieldControl*> m_pRadios;
    int m_nRadioCount = 0;
    int m_bCreated = 0;  // 1 while the controls exist

    FieldControls() = default;
    FieldControls(const FieldControls&) : FieldControls() {}
    FieldControls& operator=(const FieldControls&);
};

class CIndexField : public FieldControls {
public:
    int m_nSelected = -1;            // option index of combo and radio fields
    std::string m_strVariantFields;  // of a selector: a `^` list of field ids for each option, joined by `|`
    int m_nId = 0;
    int m_nType = 0;
    int m_nRole = 0;
    PanelRect m_rcInit;  // as the catalogue gives it
    PanelRect m_rcCur;
    std::string m_strExtra;
    std::string m_strValue;
    std::string m_strItems;  // option texts, joined by `|`
    std::string m_strCodes;  // option codes, parallel to m_strItems
    int m_bStored = 0;       // takes part in the value text
    int m_bRange = 0;        // is checked against the bounds
    double m_dMax = 0;
    double m_dMin = 0;

    // The value as it is stored and sent.
    std::string GetValueCode() const;

    // The value as it reads in the description. A live radio button stands in angle brackets, a copy's bare.
    std::string GetDisplayText() const;

    // Takes a stored value code. A list takes its first option for a code that it doesn't have.
    void SetValue(std::string_view text);

private:
    std::string Typed() const;
    std::string Option(const std::string& options) const;
    int CheckState() const;
    const FieldControl* SelectedRadio() const;
};

// The parameters of one indicator. Element 0 is its head record: no parameter, but the description formats
// (m_strItems) and their argument lists (m_strCodes).
using FieldArray = std::vector<std::unique_ptr<CIndexField>>;

// The ids of the fields that belong to the variant that `selector` has chosen; none without a choice.
std::set<int> ActiveFieldIds(const CIndexField& selector);

// The first field of `role` from element `start` on; null if none.
CIndexField* FindFieldByRole(const FieldArray& fields, int role, std::size_t start = 0);

}  // namespace jogeon
