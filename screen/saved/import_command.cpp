// The command that brings a set of another user of this computer into the own ones.
#include <algorithm>

#include "screen/files/data_paths.h"
#include "screen/saved/saved_conditions.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/transactions/store_request.h"
#include "screen/transactions/stored_condition.h"

namespace jogeon {

// What is brought in keeps the number that it had, so that it may take the place of a set of the own ones.
// Until its request is out it has no number here: whatever happens meanwhile, it can't be taken for a stored
// set of this user's.
void SavedConditions::ImportCommand() {
    const auto choice = dialogs_.AskImport(mirror_.File().parent_path(), GetUserId(links_));
    if (!choice || choice->section.empty()) return;
    const auto own = mirror_.Sets();
    if (!HasRoom(own, "조건식을 불러올 수 없습니다."_cp949, "조건 불러오기"_cp949)) return;
    if (!MayOverwrite(own, choice->section)) return;
    auto imported = OpenSavedCondition(choice->file, choice->section, tree_->Indicators());
    if (!imported) return;
    imported->m_strKey.clear();
    if (!LoadCondition(imported)) return;
    if (SendImported(*imported, IsSetNumber(choice->section) ? choice->section : "")) return;
    TrackCurrent(nullptr);
    editor_.SetDirty(true);
}

bool SavedConditions::MayOverwrite(const std::vector<SavedSetName>& own, const std::string& number) {
    const auto used =
        std::find_if(own.begin(), own.end(), [&](const SavedSetName& set) { return set.number == number; });
    if (used == own.end()) return true;
    std::string text = ReplaceAll("조건번호 [%s]에 이미 저장된 조건이 있습니다.\n\n"_cp949, "%s", number);
    text += "[" + used->name + "]\n\n" + "이 조건을 불러온 조건으로 바꾸시겠습니까?"_cp949;
    const host::Box box{text, "조건 불러오기"_cp949, host::Icon::Information, host::Buttons::YesNo};
    return questions_.Ask(box) == host::Answer::Yes;
}

bool SavedConditions::SendImported(const CSavedIndexInfo& imported, const std::string& number) {
    if (channel_.Busy()) return false;
    const std::string caption = "조건 저장"_cp949;
    return HasChecked(caption, caption) && SendSave({imported.Name, number, kSaveKey});
}

}  // namespace jogeon
