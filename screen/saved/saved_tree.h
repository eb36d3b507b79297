// The user's saved sets as the tree pane shows them, and the catalogue that the pane owns.
//
// What the store's commands and answers need of the pane; tests put a recorder in its place.
#pragma once

#include <memory>
#include <string_view>

#include "screen/condition/catalogue.h"
#include "screen/saved/saved_condition_file.h"

namespace jogeon {

class SavedTree {
public:
    virtual const Catalogue& Indicators() const = 0;

    // The user's sets in the order of their nodes.
    virtual SavedSets UserSets() const = 0;

    // Reads the user's sets from their file and shows them in its order.
    virtual void ShowSavedConditions() = 0;

    virtual void AddSaved(std::shared_ptr<CSavedIndexInfo> set) = 0;

    // Puts the set in the place of the one with its number, which is there.
    virtual void ReplaceSaved(std::shared_ptr<CSavedIndexInfo> set) = 0;

    // Takes the set with this number away; without one nothing happens.
    virtual void DeleteSaved(std::string_view key) = 0;

    virtual void ClearSelection() = 0;

protected:
    ~SavedTree() = default;
};

}  // namespace jogeon
