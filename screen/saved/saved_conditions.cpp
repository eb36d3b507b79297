#include "screen/saved/saved_conditions.h"

#include <utility>

#include "screen/expression/expression_text.h"
#include "screen/saved/same_contents.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/transactions/stored_condition.h"

namespace jogeon {
SavedConditions::SavedConditions(const Parts& parts)
    : view_(parts.view),
      dialogs_(parts.dialogs),
      editor_(parts.editor),
      channel_(parts.channel),
      questions_(parts.questions),
      expressionQuestions_(parts.expressionQuestions),
      links_(parts.links),
      settings_(parts.settings),
      download_(channel_, mirror_, questions_,
                [this](ListDownload::Outcome outcome) { OnListLoaded(outcome); }) {}

void SavedConditions::LinkTree(SavedTree& tree) {
    tree_ = &tree;
    download_.LinkCatalogue(tree.Indicators());
}

void SavedConditions::Open(std::filesystem::path file, std::string userId) {
    mirror_.Open(std::move(file), std::move(userId));
}

void SavedConditions::NewCondition() {
    if (!MayLoseChanges()) return;
    view_.ShowName("");
    editor_.Clear();
    tree_->ClearSelection();
    TrackCurrent(nullptr);
    editor_.SetDirty(false);
    if (editor_.SequenceStep() > 0) editor_.ResetSequence();
}

// While the question stands, an answer may renumber or replace what the tree shows. The set that was picked
// is then no stored one any more, and the user picks again.
bool SavedConditions::LoadCondition(SavedSet record) {
    const bool fromTree = FindSaved(record->m_strKey) == record;
    if (!MayLoseChanges()) return false;
    if (fromTree && FindSaved(record->m_strKey) != record) return false;
    view_.ShowName(record->Name);
    if (!record->m_bVendorSet) TakeTarget(*record);
    editor_.Load(*record);
    editor_.SetDirty(false);
    TrackCurrent(record->m_bVendorSet ? nullptr : std::move(record));
    if (settings_.initResult) view_.ClearResults();
    return true;
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

// Yes saves, and goes on when the save is on its way, whatever comes of it. A save that was refused would
// leave nothing of what the user wanted to keep, so that the command stops as for Cancel.
bool SavedConditions::MayLoseChanges() {
    if (!editor_.Dirty()) return true;
    const host::Answer answer = AskToSaveChanges();
    return answer == host::Answer::Yes ? SaveCondition() : answer != host::Answer::Cancel;
}

void SavedConditions::TakeTarget(const CSavedIndexInfo& record) {
    view_.SelectBuy(record.TypePosition == 1);
    target_ = TargetOfSaved(
        record, [this](const std::string& account) { return links_.NVLink_GetAccountFmt(account, 1); });
    view_.ShowTarget(target_);
}

SavedConditions::SavedSet SavedConditions::MakeSavedFromScreen(const std::string& name) const {
    auto set = std::make_shared<CSavedIndexInfo>();
    StoreTarget(target_, *set);
    set->Name = name;
    set->m_strKey.clear();  // until the server gives it a number
    set->TypePosition = view_.BuySelected() ? 1 : 0;
    set->Exp = ToCompactForm(view_.ExpressionText());
    for (const CIndexInfo* condition : editor_.Conditions()) {
        set->m_Conditions.push_back(std::make_unique<CIndexInfo>(*condition));
    }
    set->Count = static_cast<int>(set->m_Conditions.size());
    return set;
}

// --- the current set

bool SavedConditions::HasNumber() const {
    return currentSaved_ && IsSetNumber(currentSaved_->m_strKey);
}

void SavedConditions::TrackCurrent(SavedSet set) {
    currentSaved_ = std::move(set);
    view_.EnableSavedCommands(HasNumber());
}

// Makes `set`, the stored form of what is on the screen, the current one. Where there is none any more, or
// where it holds something else, what is on the screen is stored nowhere.
void SavedConditions::Adopt(SavedSet set) {
    TrackCurrent(std::move(set));
    if (currentSaved_) view_.ShowName(currentSaved_->Name);
    if (!currentSaved_ || !SameContents(*currentSaved_, *MakeSavedFromScreen(""))) editor_.SetDirty(true);
}

SavedConditions::SavedSet SavedConditions::FindSaved(std::string_view number) const {
    for (SavedSet& set : tree_->UserSets()) {
        if (set->m_strKey == number) return std::move(set);
    }
    return nullptr;
}

// The sets of an unchanged file are those that were; a set that is on its way to the server is in none yet.
void SavedConditions::OnListLoaded(ListDownload::Outcome outcome) {
    const bool unchanged = outcome == ListDownload::Outcome::Unchanged;
    if (unchanged && currentSaved_ && requests_.IsBeingSaved(*currentSaved_)) {
        tree_->ShowSavedConditions();
    } else {
        ShowRebuiltSets(currentSaved_ ? currentSaved_->m_strKey : std::string());
    }
}

// The current set is the one that has `currentNumber` now. One that never had a number is in no file.
void SavedConditions::ShowRebuiltSets(const std::string& currentNumber) {
    const bool hadNumber = HasNumber();
    tree_->ShowSavedConditions();
    if (hadNumber) Adopt(FindSaved(currentNumber));
}

}  // namespace jogeon
