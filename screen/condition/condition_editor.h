// The conditions being put together: the list, the letters, the expression, and what was changed.
//
// The expression has no model behind the text in its box: every change of the list rewrites that text. The
// editor owns the conditions; it works on grid, box and panel through ConditionView, and asks through the
// host's boxes.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "screen/condition/condition_view.h"
#include "screen/condition/saved_index_info.h"
#include "screen/host/services.h"
#include "screen/settings/screen_settings.h"

namespace jogeon {

// Columns of the condition grid.
enum ConditionColumn {
    kColumnChecked,
    kColumnLetter,
    kColumnContent,
    kColumnValue,
    kColumnDelete,
    kColumnUp,
    kColumnDown,
    kColumnFirst,
    kColumnLast,
    kConditionColumns
};

class ConditionEditor {
public:
    static constexpr std::size_t kLimit = 20;

    // All of these outlive this object; `settings` is read at each command.
    ConditionEditor(ConditionView& view, host::Questions& questions, const ScreenSettings& settings)
        : view_(view), questions_(questions), settings_(settings) {}

    // Empties list, expression and panel; the next letter is A again.
    void Clear();

    // Shows a saved set's conditions and expression.
    void Load(const CSavedIndexInfo& saved);

    // The panel's commands.
    void Add();
    void Replace();

    // What the grid reports, rows with the header as 0. A row without a condition does nothing.
    void OnCellPressed(int row, int col);
    void OnButtonPressed(int row, int col);
    void OnHeaderPressed(int col);
    void OnDoubleClicked(int row, int col);
    void OnRowDropped(int target, int source);

    // Sets (mode 0), adds (1) or subtracts (2) bars ago in all conditions; the first that refuses ends it.
    void ApplyBarsAgo(int amount, int mode);

    // Gives all conditions their letters afresh in list order, in the expression too.
    void RenumberConditions();

    // The conditions in list order; they live until the list changes.
    std::vector<const CIndexInfo*> Conditions() const;

    bool Dirty() const { return dirty_; }
    void SetDirty(bool dirty) { dirty_ = dirty; }

    // The letter of the next new condition; one past 'Z' when none is free.
    char NextLetter() const { return nextLetter_; }

    // How many checked conditions the sequential search has reached; 0 while there is none.
    int SequenceStep() const { return sequenceStep_; }

    // Takes one checked condition more, or begins anew behind the last, and marks it in the grid. Gives the
    // new step; 0, with nothing done, when no condition is checked.
    int NextSequenceStep();

    // Ends a sequential search: the step goes to 0 and the marks go from the grid.
    void ResetSequence();

private:
    bool IsRow(int index) const { return index >= 0 && index < static_cast<int>(conditions_.size()); }
    CIndexInfo& At(int index) { return *conditions_[static_cast<std::size_t>(index)]; }
    bool Confirmed(const char* question);
    int CheckedBefore(int index) const;
    void SetSequenceHighlight(int step, bool reset);

    bool MakeRoomForOne();
    void ToggleChecked(int index);
    void ToggleValue(int index);
    void CheckAllOrNone();
    void Move(int from, int to);
    void Delete(int index);
    void DropAll();

    void EditCompact(const std::function<void(std::string&)>& edit);
    void InsertLetterAt(int index, bool negated);
    bool TakeLetterOut(char letter);
    void Show(int index);
    void Changed();

    ConditionView& view_;
    host::Questions& questions_;
    const ScreenSettings& settings_;
    ConditionList conditions_;
    char nextLetter_ = 'A';
    bool allChecked_ = false;
    bool dirty_ = false;
    int sequenceStep_ = 0;
};

}  // namespace jogeon
