// The conditions being put together: the list, the letters, the expression, and what was changed.
//
// The expression has no model behind the text in its box. The editor owns the conditions; it works on grid,
// box and panel through ConditionView.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "screen/condition/index_info.h"
#include "screen/condition/saved_index_info.h"

namespace jogeon {

// What the editor needs of the screen. Rows count from 1, the header is row 0.
class ConditionView {
public:
    virtual ~ConditionView() = default;

    // Replaces all rows of the condition grid.
    virtual void FillConditionGrid(const std::vector<std::unique_ptr<CIndexInfo>>& conditions) = 0;
    virtual void FocusRow(int row) = 0;
    virtual void ClearSequenceMarks() = 0;

    virtual std::string ExpressionText() const = 0;  // the display form
    virtual void SetExpressionText(const std::string& text) = 0;

    // Opens the condition in the parameter panel; `shown` tells whether the panel comes to sight with it.
    virtual void ShowCondition(const CIndexInfo& condition, bool shown) = 0;
    virtual void HidePanel() = 0;
};

class ConditionEditor {
public:
    explicit ConditionEditor(ConditionView& view) : view_(view) {}

    // Empties list, expression and panel; the next letter is A again.
    void Clear();

    // Shows a saved set's conditions and expression. `panelShown` is false where the layout has no panel.
    void Load(const CSavedIndexInfo& saved, bool panelShown);

    // The conditions in list order; they live until the list changes.
    std::vector<const CIndexInfo*> Conditions() const;

    bool Dirty() const { return dirty_; }
    void SetDirty(bool dirty) { dirty_ = dirty; }

    // The letter of the next new condition; one past 'Z' when none is free.
    char NextLetter() const { return nextLetter_; }

    int SequenceStep() const { return sequenceStep_; }

    // Ends a sequential search: the step goes to 0 and the marks go from the grid.
    void ResetSequence();

private:
    ConditionView& view_;
    std::vector<std::unique_ptr<CIndexInfo>> conditions_;
    char nextLetter_ = 'A';
    bool dirty_ = false;
    int sequenceStep_ = 0;
};

}  // namespace jogeon
