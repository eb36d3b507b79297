// The saved set on the screen, and the commands over saved sets.
//
// Relies on the editor for conditions and expression, on the host's boxes for questions, and on
// SavedConditionView for name, target and buttons. A set is shared: tree, screen and a request may hold it.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "screen/condition/condition_editor.h"
#include "screen/condition/saved_index_info.h"
#include "screen/host/services.h"
#include "screen/settings/screen_settings.h"
#include "screen/target/search_target.h"

namespace jogeon {

// What the commands need of the screen.
class SavedConditionView {
public:
    virtual ~SavedConditionView() = default;

    virtual void ShowName(const std::string& name) = 0;
    virtual void SelectBuy(bool buy) = 0;
    virtual void ShowTarget(const SearchTarget& target) = 0;
    // The buttons that act on the current saved set.
    virtual void EnableSavedCommands(bool enabled) = 0;
    virtual void ClearTreeSelection() = 0;
    virtual void ClearResults() = 0;
};

class SavedConditions {
public:
    // Saves what is on the screen; whether a request was sent.
    using Save = std::function<bool()>;

    // Lets the user change a target; none if he leaves it as it is.
    using ChooseTarget = std::function<std::optional<SearchTarget>(const SearchTarget&)>;

    // All of these outlive this object; `settings` is read at each command.
    SavedConditions(SavedConditionView& view, ConditionEditor& editor, host::Questions& questions,
                    host::LinkStore& links, const ScreenSettings& settings);

    void SetSave(Save save) { save_ = std::move(save); }

    // Begins a new condition set, after asking for unsaved changes.
    void NewCondition();

    // Shows a set of the user's or of the firm, after asking for unsaved changes. A set of the user's brings
    // its target with it and becomes the current one.
    void LoadCondition(std::shared_ptr<CSavedIndexInfo> record);

    // Takes the target that the user chooses. It changes the set, and ends a sequential search.
    void ChangeTarget(const ChooseTarget& choose);

    // Asks whether changes shall be saved; No, without a box, where the user doesn't want to be asked.
    host::Answer AskToSaveChanges();

    const CSavedIndexInfo* CurrentSaved() const { return currentSaved_.get(); }
    const SearchTarget& Target() const { return target_; }

private:
    bool MayLoseChanges();
    void TakeTarget(const CSavedIndexInfo& record);

    SavedConditionView& view_;
    ConditionEditor& editor_;
    host::Questions& questions_;
    host::LinkStore& links_;
    const ScreenSettings& settings_;
    Save save_;
    std::shared_ptr<CSavedIndexInfo> currentSaved_;  // null: what is on the screen is a new set
    SearchTarget target_ = SearchTarget::ForNewScreen();
};

}  // namespace jogeon
