#include "screen/saved/saved_conditions.h"

#include <utility>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {
SavedConditions::SavedConditions(SavedConditionView& view, ConditionEditor& editor,
                                 host::Questions& questions, host::LinkStore& links,
                                 const ScreenSettings& settings)
    : view_(view), editor_(editor), questions_(questions), links_(links), settings_(settings) {}

void SavedConditions::NewCondition() {
    if (!MayLoseChanges()) return;
    view_.ShowName("");
    editor_.Clear();
    view_.ClearTreeSelection();
    view_.EnableSavedCommands(false);
    currentSaved_ = nullptr;
    editor_.SetDirty(false);
    if (editor_.SequenceStep() > 0) editor_.ResetSequence();
}

void SavedConditions::LoadCondition(std::shared_ptr<CSavedIndexInfo> record) {
    if (!MayLoseChanges()) return;
    view_.ShowName(record->Name);
    if (!record->m_bVendorSet) TakeTarget(*record);
    editor_.Load(*record);
    editor_.SetDirty(false);
    currentSaved_ = record->m_bVendorSet ? nullptr : std::move(record);
    view_.EnableSavedCommands(currentSaved_ != nullptr);
    if (settings_.initResult) view_.ClearResults();
}

void SavedConditions::ChangeTarget(const ChooseTarget& choose) {
    std::optional<SearchTarget> chosen = choose(target_);
    if (!chosen) return;
    target_ = *std::move(chosen);
    view_.ShowTarget(target_);
    editor_.SetDirty(true);
    if (editor_.SequenceStep() > 0) editor_.ResetSequence();
}

host::Answer SavedConditions::AskToSaveChanges() {
    if (!settings_.confirm) return host::Answer::No;
    const std::string text =
        currentSaved_ ? ReplaceAll("변경된 조건(%s)이 아직 저장되지 않았습니다. \n저장하시겠습니까?"_cp949,
                                   "%s", currentSaved_->Name)
                      : "새 조건이 아직 저장되지 않았습니다. \n저장하시겠습니까?"_cp949;
    return questions_.Ask({text, "조건 저장"_cp949, host::Icon::Information, host::Buttons::YesNoCancel});
}

// Yes saves and goes on whatever comes of it; only Cancel stops the command.
bool SavedConditions::MayLoseChanges() {
    if (!editor_.Dirty()) return true;
    const host::Answer answer = AskToSaveChanges();
    if (answer == host::Answer::Yes && save_) save_();
    return answer != host::Answer::Cancel;
}

void SavedConditions::TakeTarget(const CSavedIndexInfo& record) {
    view_.SelectBuy(record.TypePosition == 1);
    target_ = TargetOfSaved(
        record, [this](const std::string& account) { return links_.NVLink_GetAccountFmt(account, 1); });
    view_.ShowTarget(target_);
}

}  // namespace jogeon
