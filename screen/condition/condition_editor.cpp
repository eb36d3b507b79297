// The list as a whole: what is in it, its letters, and how the expression follows.
#include "screen/condition/condition_editor.h"

#include <algorithm>

#include "screen/expression/expression_text.h"
#include "screen/expression/letter_edits.h"
#include "screen/text/cp949.h"

namespace jogeon {

void ConditionEditor::Clear() {
    DropAll();
    view_.HidePanel();
}

void ConditionEditor::DropAll() {
    conditions_.clear();
    view_.FillConditionGrid(conditions_);
    view_.SetExpressionText("");
    nextLetter_ = 'A';
}

// A set without conditions gives 'B': the highest letter is sought from 'A' on.
void ConditionEditor::Load(const CSavedIndexInfo& saved) {
    sequenceStep_ = 0;
    char highest = 'A';
    for (const auto& condition : saved.m_Conditions) {
        const char letter = condition->m_chLetter;
        if (letter >= 'A' && letter <= 'Z') highest = std::max(highest, letter);
    }
    nextLetter_ = static_cast<char>(highest + 1);

    view_.SetExpressionText(ToDisplayForm(saved.Exp));
    view_.ResetPanel();
    conditions_.clear();
    for (const auto& condition : saved.m_Conditions) {
        conditions_.push_back(std::make_unique<CIndexInfo>(*condition));
        conditions_.back()->BuildDescription();
    }
    view_.FillConditionGrid(conditions_);
    if (conditions_.empty()) return;
    view_.FocusRow(1);
    Show(0);
}

void ConditionEditor::RenumberConditions() {
    std::string letters;
    nextLetter_ = 'A';
    for (const auto& condition : conditions_) {
        condition->m_chLetter = nextLetter_++;
        if (condition->m_bChecked) letters += condition->m_chLetter;
    }
    if (letters.empty()) return;
    EditCompact([&](std::string& compact) { RenumberLetters(compact, letters); });
}

std::vector<const CIndexInfo*> ConditionEditor::Conditions() const {
    std::vector<const CIndexInfo*> all;
    for (const auto& condition : conditions_) all.push_back(condition.get());
    return all;
}

int ConditionEditor::NextSequenceStep() {
    const int checked = CheckedBefore(static_cast<int>(conditions_.size()));
    if (checked == 0) return 0;
    if (sequenceStep_ >= checked) ResetSequence();
    SetSequenceHighlight(++sequenceStep_, false);
    return sequenceStep_;
}

void ConditionEditor::ResetSequence() {
    sequenceStep_ = 0;
    SetSequenceHighlight(0, true);
}

// Marks the step-th checked condition; those of earlier steps keep their marks. A reset takes all marks away.
void ConditionEditor::SetSequenceHighlight(int step, bool reset) {
    if (reset) return view_.ClearSequenceMarks();
    for (int index = 0; IsRow(index); ++index) {
        if (At(index).m_bChecked && --step == 0) return view_.MarkSequenceRow(index + 1);
    }
}

bool ConditionEditor::Confirmed(const char* question) {
    return questions_.Ask({ToCp949(question), "조건검색"_cp949, host::Icon::Question,
                           host::Buttons::YesNo}) == host::Answer::Yes;
}

int ConditionEditor::CheckedBefore(int index) const {
    return static_cast<int>(std::count_if(conditions_.begin(), conditions_.begin() + index,
                                          [](const auto& condition) { return condition->m_bChecked != 0; }));
}

void ConditionEditor::EditCompact(const std::function<void(std::string&)>& edit) {
    std::string compact = ToCompactForm(view_.ExpressionText());
    edit(compact);
    view_.SetExpressionText(ToDisplayForm(compact));
}

// At the place that the condition has among the checked ones.
void ConditionEditor::InsertLetterAt(int index, bool negated) {
    EditCompact([&](std::string& compact) {
        InsertLetter(compact, At(index).m_chLetter, CheckedBefore(index), negated);
    });
}

// A text without the letter stays as it was typed. True if the letter stood negated.
bool ConditionEditor::TakeLetterOut(char letter) {
    std::string compact = ToCompactForm(view_.ExpressionText());
    if (compact.find(letter) == std::string::npos) return false;
    const bool negated = RemoveLetter(compact, letter);
    view_.SetExpressionText(ToDisplayForm(compact));
    return negated;
}

void ConditionEditor::Show(int index) {
    view_.ShowCondition(At(index), settings_.expandMode != kResultsOnly);
}

void ConditionEditor::Changed() {
    dirty_ = true;
    ResetSequence();
}

}  // namespace jogeon
