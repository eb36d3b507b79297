// The commands on the condition list: each changes the list, then grid, expression and panel after it.
#include <algorithm>

#include "screen/condition/condition_editor.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr int kAskBeforeEach = 2;  // of the setting delConfirm; 0 never asks

}  // namespace

void ConditionEditor::Add() {
    if (!MakeRoomForOne()) return;
    std::unique_ptr<CIndexInfo> added = view_.PanelCondition();
    added->m_bShowValue = 0;
    added->m_bChecked = 1;
    added->m_chLetter = nextLetter_++;
    const bool joins = CheckedBefore(static_cast<int>(conditions_.size())) > 0;
    const std::string text = view_.ExpressionText() + (joins ? " and " : "") + added->m_chLetter;

    conditions_.push_back(std::move(added));
    view_.FillConditionGrid(conditions_);
    view_.FocusRow(static_cast<int>(conditions_.size()));
    view_.OnAdded(*conditions_.back());
    view_.SetExpressionText(text);
    Changed();
}

bool ConditionEditor::MakeRoomForOne() {
    if (conditions_.size() >= kLimit) {
        questions_.Ask({"더이상 지표를 추가할 수 없습니다. (최대 20개)"_cp949, "조건검색"_cp949,
                        host::Icon::Information, host::Buttons::Ok});
        return false;
    }
    if (nextLetter_ <= 'Z') return true;
    if (!Confirmed("더이상 추가할 문자(A-Z)가 없습니다.\n문자를 재정렬하시겠습니까?")) return false;
    RenumberConditions();
    return true;
}

// The condition that the panel shows is meant. That is the focused row's, but a press of a row's button takes
// the focus away.
void ConditionEditor::Replace() {
    int index = 0;
    while (IsRow(index) && &At(index) != view_.ShownCondition()) ++index;
    if (!IsRow(index)) return;
    std::unique_ptr<CIndexInfo> replacement = view_.PanelCondition();
    replacement->m_bShowValue = At(index).m_bShowValue;
    replacement->m_bChecked = At(index).m_bChecked;
    replacement->m_chLetter = At(index).m_chLetter;
    conditions_[static_cast<std::size_t>(index)] = std::move(replacement);
    view_.UpdateRow(index + 1, At(index));
    view_.RefreshCondition(At(index));
    Changed();
}

void ConditionEditor::OnCellPressed(int row, int col) {
    const int index = row - 1;
    if (!IsRow(index) || col > kColumnValue) return;
    Show(index);
    if (col == kColumnChecked) ToggleChecked(index);
    if (col == kColumnValue) ToggleValue(index);
}

void ConditionEditor::ToggleChecked(int index) {
    CIndexInfo& condition = At(index);
    condition.m_bChecked = !condition.m_bChecked;
    view_.UpdateRow(index + 1, condition);
    if (condition.m_bChecked) {
        InsertLetterAt(index, false);
    } else {
        TakeLetterOut(condition.m_chLetter);
    }
    Changed();
}

void ConditionEditor::ToggleValue(int index) {
    CIndexInfo& condition = At(index);
    condition.m_bShowValue = !condition.m_bShowValue;
    view_.UpdateRow(index + 1, condition);
    Changed();
}

void ConditionEditor::OnButtonPressed(int row, int col) {
    const int index = row - 1;
    if (!IsRow(index)) return;
    const int last = static_cast<int>(conditions_.size()) - 1;
    switch (col) {
        case kColumnUp:
            return Move(index, index - 1);
        case kColumnDown:
            return Move(index, index + 1);
        case kColumnFirst:
            return Move(index, 0);
        case kColumnLast:
            return Move(index, last);
        default:
            if (settings_.delConfirm == kAskBeforeEach && !Confirmed("조건을 삭제하시겠습니까?")) return;
            return Delete(index);
    }
}

// Onto a row above it lands in front of that row, onto one below behind it: at its place either way.
void ConditionEditor::OnRowDropped(int target, int source) {
    Move(source - 1, target - 1);
}

void ConditionEditor::Move(int from, int to) {
    if (!IsRow(from) || !IsRow(to) || from == to) return;
    std::unique_ptr<CIndexInfo> moved = std::move(conditions_[static_cast<std::size_t>(from)]);
    conditions_.erase(conditions_.begin() + from);
    conditions_.insert(conditions_.begin() + to, std::move(moved));
    if (At(to).m_bChecked) {
        const bool negated = TakeLetterOut(At(to).m_chLetter);
        InsertLetterAt(to, negated);
    }
    view_.FillConditionGrid(conditions_);
    view_.FocusRow(to + 1);
    Show(to);
    Changed();
}

void ConditionEditor::OnDoubleClicked(int row, int col) {
    if (IsRow(row - 1) && (col == kColumnLetter || col == kColumnContent)) Delete(row - 1);
}

void ConditionEditor::Delete(int index) {
    const char letter = At(index).m_chLetter;
    conditions_.erase(conditions_.begin() + index);
    if (conditions_.empty()) {
        Clear();
    } else {
        view_.FillConditionGrid(conditions_);
        TakeLetterOut(letter);
        index = std::min(index, static_cast<int>(conditions_.size()) - 1);
        view_.FocusRow(index + 1);
        Show(index);
    }
    Changed();
}

void ConditionEditor::OnHeaderPressed(int col) {
    switch (col) {
        case kColumnChecked:
            CheckAllOrNone();
            break;
        case kColumnLetter:
            if (!Confirmed("지표 문자를 재정렬하시겠습니까?")) return;
            RenumberConditions();
            view_.FillConditionGrid(conditions_);
            break;
        case kColumnDelete:
            if (settings_.delConfirm != 0 && !Confirmed("개별조건 전체를 삭제하시겠습니까?")) return;
            DropAll();
            view_.ResetPanel();
            break;
        default:
            return;
    }
    Changed();
}

void ConditionEditor::CheckAllOrNone() {
    allChecked_ = !allChecked_;
    for (int index = 0; IsRow(index); ++index) {
        CIndexInfo& condition = At(index);
        if ((condition.m_bChecked != 0) == allChecked_) continue;
        condition.m_bChecked = allChecked_;
        view_.UpdateRow(index + 1, condition);
        if (allChecked_) InsertLetterAt(index, false);
    }
    if (!allChecked_) view_.SetExpressionText("");
}

void ConditionEditor::ApplyBarsAgo(int amount, int mode) {
    if (conditions_.empty()) return;
    for (int index = 0; IsRow(index); ++index) {
        if (!At(index).ApplyBarsAgo(amount, mode, questions_)) break;
        view_.UpdateRow(index + 1, At(index));
        if (view_.ShownCondition() == &At(index)) view_.RefreshCondition(At(index));
    }
    dirty_ = true;
}

}  // namespace jogeon
