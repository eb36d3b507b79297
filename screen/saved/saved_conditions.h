// The saved set on the screen, and the commands over saved sets.
//
// Relies on the editor for the conditions, on the request channel for the server, on SavedMirror for the
// user's file and on SavedTree for what the left pane shows. A command only sends its request: file, tree and
// screen change when the server has agreed. A set is shared: tree, screen and a request may hold it.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/condition/condition_editor.h"
#include "screen/condition/saved_index_info.h"
#include "screen/host/services.h"
#include "screen/saved/list_download.h"
#include "screen/saved/saved_mirror.h"
#include "screen/saved/saved_questions.h"
#include "screen/saved/saved_tree.h"
#include "screen/saved/store_requests.h"
#include "screen/settings/screen_settings.h"
#include "screen/target/search_target.h"
#include "screen/transactions/request_channel.h"
#include "screen/transactions/store_reply.h"

namespace jogeon {

// What the commands need of the screen.
class SavedConditionView {
public:
    virtual ~SavedConditionView() = default;

    virtual void ShowName(const std::string& name) = 0;
    virtual bool BuySelected() const = 0;
    virtual void SelectBuy(bool buy) = 0;
    virtual void ShowTarget(const SearchTarget& target) = 0;
    virtual std::string ExpressionText() const = 0;  // the display form
    // Whether the expression is well formed; if it isn't, the user has been shown where.
    virtual bool CheckExpression(const std::string& text) = 0;
    // The buttons that act on the current saved set.
    virtual void EnableSavedCommands(bool enabled) = 0;
    virtual void ClearResults() = 0;
};

class SavedConditions {
public:
    // All of these outlive the SavedConditions; `settings` is read at each command.
    struct Parts {
        SavedConditionView& view;
        SavedQuestions& dialogs;
        ConditionEditor& editor;
        RequestChannel& channel;
        host::Questions& questions;
        host::Questions& expressionQuestions;  // about what is wrong with the expression
        host::LinkStore& links;
        const ScreenSettings& settings;
    };

    // Lets the user change a target; none if he leaves it as it is.
    using ChooseTarget = std::function<std::optional<SearchTarget>(const SearchTarget&)>;

    explicit SavedConditions(const Parts& parts);
    SavedConditions(const SavedConditions&) = delete;
    SavedConditions& operator=(const SavedConditions&) = delete;

    // The tree pane, once, before anything else; it outlives this object.
    void LinkTree(SavedTree& tree);

    // Steps of the start-up: the user's file and its version; and the question to the server what is new.
    void Open(std::filesystem::path file, std::string userId);
    void RequestList() { download_.Start(); }

    // Begins a new condition set, after asking for unsaved changes.
    void NewCondition();

    // Shows a set of the user's or of the firm, after asking for unsaved changes. A set of the user's brings
    // its target with it and becomes the current one. False if the user stays with what he has.
    bool LoadCondition(std::shared_ptr<CSavedIndexInfo> record);

    // The save button; and the save itself, which tells whether a request was sent.
    void SaveCommand();
    bool SaveCondition();

    void SaveAsCommand();
    void RenameCommand();
    void DeleteCommand();
    void ImportCommand();
    void ReorderCommand();

    // Takes the target that the user chooses. It changes the set, and ends a sequential search.
    void ChangeTarget(const ChooseTarget& choose);

    // Asks whether changes shall be saved; No, without a box, where the user doesn't want to be asked.
    host::Answer AskToSaveChanges();

    // Takes the replies to the store's requests, and the end of the wait for a list, from now on.
    void WireReplies();

    // The saved set on the screen; null for a new one. It has no number while its first save is unanswered.
    const CSavedIndexInfo* CurrentSaved() const { return currentSaved_.get(); }
    const SearchTarget& Target() const { return target_; }

private:
    using SavedSet = std::shared_ptr<CSavedIndexInfo>;

    // A save as it is to go out; an empty number asks for a new one.
    struct Save {
        std::string name;
        std::string number;
        std::uint8_t key = 0;
        std::chrono::milliseconds limit{0};  // 0: the usual one
    };
    struct Captions {
        std::string noCondition;
        std::string noneChecked;
        std::string noTarget;
    };

    bool MayLoseChanges();
    void TakeTarget(const CSavedIndexInfo& record);
    SavedSet MakeSavedFromScreen(const std::string& name) const;

    // The current set and what shows it.
    bool HasNumber() const;
    void TrackCurrent(SavedSet set);
    void Adopt(SavedSet set);
    SavedSet FindSaved(std::string_view number) const;
    void OnListLoaded(ListDownload::Outcome outcome);
    void ShowRebuiltSets(const std::string& currentNumber);

    // Checks of the commands; each tells the user what is missing.
    bool HasRoom(const std::vector<SavedSetName>& own, const std::string& refusal,
                 const std::string& caption);
    bool HasChecked(const std::string& noCondition, const std::string& noneChecked);
    bool MayStore(const Captions& captions);
    bool MayOverwrite(const std::vector<SavedSetName>& own, const std::string& number);
    bool Fits(const std::string& name);

    bool SendSave(const Save& save);
    bool SendImported(const CSavedIndexInfo& imported, const std::string& number);

    // Replies by their first byte: "A" and "E"; "D"; "C".
    void OnSaveReply(std::string_view data);
    void OnDeleteReply(std::string_view data);
    void OnReorderReply(std::string_view data);
    void OnSaveFailed(const StoreRequests::List& failed, const StoreReply& reply);
    void OnSaved(const StoreRequest& request, const StoreReply& reply);
    void OnDeleted(const StoreRequest& request, const StoreReply& reply);
    void OnReordered(const StoreRequest& request, const StoreReply& reply);
    bool IsCertain(const StoreRequests::List& answered) const;
    void DownloadInstead(const StoreRequests::List& answered);
    void TellFailure(const std::string& what, const StoreReply& reply);
    void TellUnwritten();

    SavedConditionView& view_;
    SavedQuestions& dialogs_;
    ConditionEditor& editor_;
    RequestChannel& channel_;
    host::Questions& questions_;
    host::Questions& expressionQuestions_;
    host::LinkStore& links_;
    const ScreenSettings& settings_;
    SavedTree* tree_ = nullptr;

    SavedMirror mirror_;
    ListDownload download_;
    StoreRequests requests_;
    SavedSet currentSaved_;
    bool saveNameFlag_ = true;  // the next new set keeps what its section holds
    SearchTarget target_ = SearchTarget::ForNewScreen();
};

}  // namespace jogeon
