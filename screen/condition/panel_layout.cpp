#include "screen/condition/panel_layout.h"

#include <algorithm>

#include "screen/condition/token_list.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

constexpr int kOptionHeight = 15;  // of a radio button in a column
constexpr int kRowHeight = 20;     // of one in a row
constexpr int kTwoRows = 30;       // a field of more than this height has two rows
constexpr int kEmptyOptionWidth = 15;

PanelRect Cut(const PanelRect& rect) {
    return {std::max(rect.left, kFieldArea.left), std::max(rect.top, kFieldArea.top),
            std::min(rect.right, kFieldArea.right), std::min(rect.bottom, kFieldArea.bottom)};
}

PanelRect Grown(PanelRect rect, int up, int down) {
    rect.top -= up;
    rect.bottom += down;
    return rect;
}

// One below the other, each in an equal share of the height.
std::vector<PanelRect> ColumnOfOptions(const PanelRect& rect, std::size_t count) {
    std::vector<PanelRect> rects;
    const int share = (rect.bottom - rect.top) / static_cast<int>(count);
    const int height = std::min(share, kOptionHeight);
    for (std::size_t i = 0; i < count; ++i) {
        const int top = rect.top + static_cast<int>(i) * share + (share - height) / 2;
        rects.push_back({rect.left, top, rect.right, top + height});
    }
    return rects;
}

// Side by side, on two rows where there is the height for them.
std::vector<PanelRect> RowsOfOptions(const PanelRect& rect, const std::vector<std::string>& texts) {
    const bool twoRows = rect.bottom - rect.top > kTwoRows;
    const std::size_t perRow = twoRows ? (texts.size() + 1) / 2 : texts.size();
    const int share = (rect.right - rect.left) / static_cast<int>(perRow);
    const int height = twoRows ? kRowHeight : rect.bottom - rect.top;
    std::vector<PanelRect> rects;
    int left = rect.left, top = rect.top;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i == perRow) {
            left = rect.left;
            top += height;
        }
        const int width = texts[i].empty() ? kEmptyOptionWidth : share;
        rects.push_back({left, top, left + width, top + height});
        if (left < kFieldArea.right) left += width;  // what stands further right is cut off anyway
    }
    return rects;
}

// The ids that any option of the selector names.
std::set<int> NamedIds(const CIndexField& selector) {
    std::set<int> ids;
    const CTokenList options(selector.m_strVariantFields, '|');
    for (const std::string& option : options.Tokens()) {
        const CTokenList list(option, '^');
        for (const std::string& id : list.Tokens()) ids.insert(Atoi(id));
    }
    return ids;
}

// The field that a label stands before: the next one at its right in the same row; null if there is none.
const std::unique_ptr<CIndexField>* LabelledField(const FieldArray& fields, const CIndexField& label) {
    const std::unique_ptr<CIndexField>* next = nullptr;
    const PanelRect& at = label.m_rcCur;
    for (const auto& field : fields) {
        const PanelRect& rect = field->m_rcCur;
        const bool sameRow = rect.top < at.bottom && rect.bottom > at.top;
        if (field->m_nType == kFieldLabel || !sameRow || rect.left < at.right) continue;
        if (!next || rect.left < (*next)->m_rcCur.left) next = &field;
    }
    return next;
}

}  // namespace

bool IsEmpty(const PanelRect& rect) {
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

// Entries are a little higher than their place in the file, so that their frames stand around it.
PanelRect ControlRect(const CIndexField& field) {
    switch (field.m_nType) {
        case kFieldEdit:
            return Cut(Grown(field.m_rcCur, 2, 2));
        case kFieldSpin:
            return Cut(Grown(field.m_rcCur, 1, 1));
        case kFieldList:
        case kFieldSectorList:
            return Cut(Grown(field.m_rcCur, 1, -1));
        default:
            return Cut(field.m_rcCur);
    }
}

std::vector<PanelRect> OptionRects(const CIndexField& field, const std::vector<std::string>& texts) {
    if (texts.empty()) return {};
    std::vector<PanelRect> rects = field.m_nType == kFieldRadioRows
                                       ? RowsOfOptions(field.m_rcCur, texts)
                                       : ColumnOfOptions(field.m_rcCur, texts.size());
    for (PanelRect& rect : rects) rect = Cut(rect);
    return rects;
}

std::vector<bool> FieldsInUse(const FieldArray& fields, int option) {
    std::vector<bool> used(fields.size(), true);
    const CIndexField* found = FindFieldByRole(fields, kRoleSelector, 1);
    if (!found) return used;
    CIndexField selector = *found;
    selector.m_nSelected = option;
    const std::set<int> active = ActiveFieldIds(selector), named = NamedIds(selector);
    if (active.empty()) return used;
    for (std::size_t i = 1; i < fields.size(); ++i) {
        const CIndexField& field = *fields[i];
        const bool variable = field.m_bStored || named.contains(field.m_nId);
        used[i] = &field == found || !variable || active.contains(field.m_nId);
    }
    for (std::size_t i = 1; i < fields.size(); ++i) {
        if (fields[i]->m_nType != kFieldLabel) continue;
        const auto* labelled = LabelledField(fields, *fields[i]);
        if (labelled) used[i] = used[static_cast<std::size_t>(labelled - fields.data())];
    }
    return used;
}

}  // namespace jogeon
