#include "screen/condition/condition_editor.h"

#include <algorithm>

#include "screen/expression/expression_text.h"

namespace jogeon {

void ConditionEditor::Clear() {
    conditions_.clear();
    view_.FillConditionGrid(conditions_);
    view_.HidePanel();
    view_.SetExpressionText("");
    nextLetter_ = 'A';
}

// A set without conditions gives 'B': the highest letter is sought from 'A' on.
void ConditionEditor::Load(const CSavedIndexInfo& saved, bool panelShown) {
    sequenceStep_ = 0;
    char highest = 'A';
    for (const auto& condition : saved.m_Conditions) {
        const char letter = condition->m_chLetter;
        if (letter >= 'A' && letter <= 'Z') highest = std::max(highest, letter);
    }
    nextLetter_ = static_cast<char>(highest + 1);

    view_.SetExpressionText(ToDisplayForm(saved.Exp));
    conditions_.clear();
    for (const auto& condition : saved.m_Conditions) {
        conditions_.push_back(std::make_unique<CIndexInfo>(*condition));
        conditions_.back()->BuildDescription();
    }
    view_.FillConditionGrid(conditions_);
    if (conditions_.empty()) return;
    view_.FocusRow(1);
    view_.ShowCondition(*conditions_.front(), panelShown);
}

std::vector<const CIndexInfo*> ConditionEditor::Conditions() const {
    std::vector<const CIndexInfo*> all;
    for (const auto& condition : conditions_) all.push_back(condition.get());
    return all;
}

void ConditionEditor::ResetSequence() {
    sequenceStep_ = 0;
    view_.ClearSequenceMarks();
}

}  // namespace jogeon
