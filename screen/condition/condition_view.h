// What the condition editor needs of the screen: grid, expression box and parameter panel.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "screen/condition/index_info.h"

namespace jogeon {

using ConditionList = std::vector<std::unique_ptr<CIndexInfo>>;

// Rows of the grid count from 1: row 0 is the header, and row r shows condition r - 1.
class ConditionView {
public:
    virtual ~ConditionView() = default;

    // Replaces all rows. The list is whole: a condition that isn't in it is gone.
    virtual void FillConditionGrid(const ConditionList& conditions) = 0;
    virtual void UpdateRow(int row, const CIndexInfo& condition) = 0;  // repaints one row as it is now
    virtual void FocusRow(int row) = 0;
    virtual void MarkSequenceRow(int row) = 0;  // as reached by the sequential search
    virtual void ClearSequenceMarks() = 0;      // of all rows

    virtual std::string ExpressionText() const = 0;  // the display form
    virtual void SetExpressionText(const std::string& text) = 0;

    // Opens a condition of the list in the panel, unless it stands there already; `shown` tells whether the
    // panel comes to sight with it.
    virtual void ShowCondition(const CIndexInfo& condition, bool shown) = 0;
    virtual void RefreshCondition(const CIndexInfo& condition) = 0;  // the same, with its values read anew

    // What the panel shows: a condition of the list, one of the tree that isn't in the list, or nothing. It
    // may be gone already, so that it is only compared.
    virtual const CIndexInfo* ShownCondition() const = 0;
    virtual void HidePanel() = 0;
    virtual void ResetPanel() = 0;  // it shows nothing, and remembers no condition of the list

    // A new condition as the panel stands, its values checked before; and what has become of it in the list.
    virtual std::unique_ptr<CIndexInfo> PanelCondition() = 0;
    virtual void OnAdded(const CIndexInfo& condition) = 0;
};

}  // namespace jogeon
