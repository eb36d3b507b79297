// What the server's answers to saves and deletions do to file, tree and screen.
//
// All of it is done before a box tells of it: a box lets further answers in.
#include <algorithm>

#include "screen/saved/same_contents.h"
#include "screen/saved/saved_conditions.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {

void SavedConditions::WireReplies() {
    const auto save = [this](std::string_view reply) { OnSaveReply(reply); };
    channel_.SetHandler('A', save);
    channel_.SetHandler('E', save);
    channel_.SetHandler('D', [this](std::string_view reply) { OnDeleteReply(reply); });
    channel_.SetHandler('C', [this](std::string_view reply) { OnReorderReply(reply); });
    channel_.SetHandler('V',
                        [this](std::string_view reply) { download_.OnReply(reply, channel_.ReplyKey()); });
    channel_.SetExpired([this](RequestChannel::Guard guard) {
        if (guard == RequestChannel::Guard::ListDownload) download_.OnTimeout();
    });
}

void SavedConditions::OnSaveReply(std::string_view data) {
    const StoreReply reply = ReadStoreReply(data);
    const StoreRequests::List answered = requests_.Take(data.front());
    if (answered.empty()) return;
    const StoreRequest& request = answered.front();
    const bool itsNumber = request.letter == 'A' || request.set->m_strKey == reply.number;
    if (!reply.success) {
        OnSaveFailed(answered, reply);
    } else if (!IsCertain(answered) || !itsNumber) {
        DownloadInstead(answered);
    } else {
        OnSaved(request, reply);
    }
}

// A set that wasn't saved is no saved set. One that has left the screen meanwhile changes nothing there.
void SavedConditions::OnSaveFailed(const StoreRequests::List& failed, const StoreReply& reply) {
    for (const StoreRequest& request : failed) {
        if (currentSaved_ != request.set) continue;
        TrackCurrent(nullptr);
        if (request.letter == 'A') view_.ShowName("");
    }
    TellFailure("조건 저장"_cp949, reply);
}

// The set on the screen may be another by now, and the screen may have been changed since the request: only
// what was sent is saved.
void SavedConditions::OnSaved(const StoreRequest& request, const StoreReply& reply) {
    const SavedSet& saved = request.set;
    const bool isNew = request.letter == 'A';
    saved->m_strKey = reply.number;
    if (FindSaved(reply.number)) {
        tree_->ReplaceSaved(saved);
    } else {
        tree_->AddSaved(saved);
    }
    const bool written = mirror_.Put(*saved, !isNew || saveNameFlag_, *reply.version);
    if (isNew) saveNameFlag_ = true;
    if (currentSaved_ == saved) {
        TrackCurrent(saved);  // it has a number now
        if (SameContents(*saved, *MakeSavedFromScreen(""))) editor_.SetDirty(false);
    } else if (currentSaved_ && currentSaved_->m_strKey == reply.number) {
        Adopt(isNew ? nullptr : saved);
    }
    if (isNew) {
        const std::string text =
            ReplaceAll("사용자정의 조건이 조건번호 [%s]에 저장되었습니다"_cp949, "%s", reply.number);
        questions_.Ask({text, "조건 저장"_cp949});
    }
    if (!written) TellUnwritten();
}

void SavedConditions::OnDeleteReply(std::string_view data) {
    const StoreReply reply = ReadStoreReply(data);
    const StoreRequests::List answered = requests_.Take('D');
    if (answered.empty()) return;
    if (!reply.success) {
        questions_.Ask({"조건삭제가 실패하였습니다."_cp949, "조건 삭제"_cp949});
    } else if (!IsCertain(answered)) {
        DownloadInstead(answered);
    } else {
        OnDeleted(answered.front(), reply);
    }
}

// The screen is emptied only of the set that was deleted. What the user has changed since then stays with him
// as a new set.
void SavedConditions::OnDeleted(const StoreRequest& request, const StoreReply& reply) {
    const std::string number = request.set->m_strKey;
    const bool written = mirror_.Remove(number, *reply.version);
    tree_->DeleteSaved(number);
    if (currentSaved_ && currentSaved_->m_strKey == number) {
        if (SameContents(*request.screen, *MakeSavedFromScreen(""))) {
            editor_.SetDirty(false);
            NewCondition();
        } else {
            view_.ShowName("");
            Adopt(nullptr);
        }
    }
    if (!written) TellUnwritten();
}

// Only one request can be meant, and nothing else has changed the sets since it went out.
bool SavedConditions::IsCertain(const StoreRequests::List& answered) const {
    return answered.size() == 1 && answered.front().version == mirror_.Version();
}

// The server has done something, but it can't be told what: the sets come anew from it.
void SavedConditions::DownloadInstead(const StoreRequests::List& answered) {
    for (const StoreRequest& request : answered) {
        if (!request.set || currentSaved_ != request.set || HasNumber()) continue;
        TrackCurrent(nullptr);
        view_.ShowName("");
    }
    download_.Start();
}

// A refusal for another version means that the user's sets aren't the server's any more.
void SavedConditions::TellFailure(const std::string& what, const StoreReply& reply) {
    if (!reply.version || *reply.version == mirror_.Version()) {
        questions_.Ask({what + "에 실패하였습니다."_cp949, what});
        return;
    }
    const std::string text = "버전 오류로 인해 "_cp949 + what +
                             "에 실패하였습니다. \n\n서버와 데이터를 일치시키기 위해 [사용자정의 조건식]을 \n"
                             "다시 다운로드 받으시겠습니까?\n"_cp949;
    const host::Box box{text, what, host::Icon::Information, host::Buttons::YesNo};
    if (questions_.Ask(box) == host::Answer::Yes) download_.Start();
}

void SavedConditions::TellUnwritten() {
    questions_.Ask(
        {"서버에는 저장되었지만 이 컴퓨터의 파일에는 쓸 수 없었습니다.\n\n화면을 다시 열면 서버에서 다시 "
         "받아 옵니다."_cp949,
         "조건 저장"_cp949});
}

}  // namespace jogeon
