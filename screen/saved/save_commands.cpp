// The commands that send the set on the screen to the store, or have one deleted there.
#include <algorithm>
#include <utility>

#include "screen/saved/saved_conditions.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/transactions/search_request.h"
#include "screen/transactions/store_request.h"

namespace jogeon {
namespace {

constexpr std::size_t kMostSets = 99;
constexpr std::chrono::milliseconds kRenameLimit{20000};

std::vector<std::string> NamesOf(const std::vector<SavedSetName>& sets) {
    std::vector<std::string> names;
    for (const SavedSetName& set : sets) names.push_back(set.name);
    return names;
}

}  // namespace

void SavedConditions::SaveCommand() {
    saveNameFlag_ = false;
    if (settings_.nameConfirm && currentSaved_) {
        const std::string text = ReplaceAll("[%s] 조건을 저장하시겠습니까?"_cp949, "%s", currentSaved_->Name);
        const host::Box box{text, "조건 저장"_cp949, host::Icon::Information, host::Buttons::YesNo};
        if (questions_.Ask(box) != host::Answer::Yes) return;
    }
    SaveCondition();
}

bool SavedConditions::SaveCondition() {
    if (channel_.Busy()) return false;
    const std::string caption = "조건 저장"_cp949;
    const auto own = mirror_.Sets();
    if (!currentSaved_ && !HasRoom(own, "조건식을 저장할 수 없습니다."_cp949, caption)) return false;
    if (!MayStore({caption, caption, caption})) return false;
    const auto name = currentSaved_ ? currentSaved_->Name : dialogs_.AskName(NamesOf(own), "");
    return name && SendSave({*name, HasNumber() ? currentSaved_->m_strKey : "", kSaveKey});
}

void SavedConditions::SaveAsCommand() {
    if (channel_.Busy() || !currentSaved_) return;
    const std::string caption = "다른이름으로 저장"_cp949;
    const auto own = mirror_.Sets();
    if (!HasRoom(own, "조건식을 저장할 수 없습니다."_cp949, caption)) return;
    if (!MayStore({caption, caption, caption})) return;
    if (const auto name = dialogs_.AskName(NamesOf(own), "")) SendSave({*name, "", kSaveAsKey});
}

// The set that is renamed is the one that was asked about: an answer that comes while the questions stand
// may put another in its place.
void SavedConditions::RenameCommand() {
    if (channel_.Busy() || !HasNumber()) return;
    const SavedSet renamed = currentSaved_;
    if (!MayStore({"조건 저장"_cp949, "조건명 변경"_cp949, "조건 검색"_cp949})) return;
    const host::Box box{
        "조건명을 바꾸면 현재의 변경된 조건이 자동으로 \n서버에 저장됩니다.\n\n"
        "조건명을 바꾸시겠습니까?"_cp949,
        "조건명 변경"_cp949, host::Icon::Information, host::Buttons::YesNo};
    if (questions_.Ask(box) != host::Answer::Yes) return;
    const auto name = dialogs_.AskName(NamesOf(mirror_.Sets()), renamed->Name);
    if (name && currentSaved_ == renamed) SendSave({*name, renamed->m_strKey, kRenameKey, kRenameLimit});
}

void SavedConditions::DeleteCommand() {
    if (channel_.Busy() || !HasNumber()) return;
    const SavedSet deleted = currentSaved_;
    const std::string text =
        ReplaceAll("조건명 : [%s] \n\n이 조건을 삭제하시겠습니까?"_cp949, "%s", deleted->Name);
    const host::Box box{text, "조건검색"_cp949, host::Icon::Information, host::Buttons::YesNo};
    if (questions_.Ask(box) != host::Answer::Yes || currentSaved_ != deleted) return;
    requests_.Add({'D', mirror_.Version(), deleted, MakeSavedFromScreen(""), {}});
    channel_.Send(BuildDeleteRequest(*deleted, mirror_.UserId(), mirror_.Version()), kDeleteKey);
}

// --- checks

bool SavedConditions::HasRoom(const std::vector<SavedSetName>& own, const std::string& refusal,
                              const std::string& caption) {
    if (own.size() != kMostSets) return true;
    questions_.Ask({refusal + "\n\n사용자정의 조건식의 저장은 99개까지만 가능합니다."_cp949, caption});
    return false;
}

bool SavedConditions::HasChecked(const std::string& noCondition, const std::string& noneChecked) {
    const auto conditions = editor_.Conditions();
    if (!CheckedConditions(conditions).empty()) return true;
    questions_.Ask(
        {"개별조건을 한개 이상 추가해 주십시요."_cp949, conditions.empty() ? noCondition : noneChecked});
    return false;
}

bool SavedConditions::MayStore(const Captions& captions) {
    if (!HasChecked(captions.noCondition, captions.noneChecked)) return false;
    if (HasUniverse(target_)) return true;
    questions_.Ask({"검색 대상을 먼저 지정해야 합니다."_cp949, captions.noTarget});
    return false;
}

// What comes from a file or from the condition list may be more than a request holds; nothing is cut.
bool SavedConditions::Fits(const std::string& name) {
    std::string refusal;
    if (name.size() > kMostNameBytes)
        refusal = "조건명이 너무 깁니다.\n\n한글 40자(영문 80자)까지 쓸 수 있습니다."_cp949;
    if (editor_.Conditions().size() > kMostConditions)
        refusal = "개별조건은 20개까지 저장할 수 있습니다."_cp949;
    if (!refusal.empty()) questions_.Ask({refusal, "조건 저장"_cp949});
    return refusal.empty();
}

// --- sending

bool SavedConditions::SendSave(const Save& save) {
    const auto expression = CompactExpression(
        view_.ExpressionText(), [this](const std::string& text) { return view_.CheckExpression(text); },
        expressionQuestions_);
    if (!expression || !Fits(save.name)) return false;
    const HeaderSource header{mirror_.UserId(), currentSaved_.get(), "", view_.BuySelected(), target_};
    const SaveInputs inputs{header, editor_.Conditions(), *expression, mirror_.Version()};
    const auto payload = BuildSaveRequest(inputs, save.name, save.number);
    if (!payload) return false;

    view_.ShowName(save.name);
    auto pendingSaved = MakeSavedFromScreen(save.name);
    pendingSaved->m_strKey = save.number;
    TrackCurrent(pendingSaved);
    requests_.Add({payload->front(), mirror_.Version(), pendingSaved, pendingSaved, {}});
    channel_.Send(*payload, save.key, save.limit);
    return true;
}

}  // namespace jogeon
