// What the commands over saved sets ask the user by dialogs of their own.
//
// Texts are CP949. Every question gives none when the dialog is cancelled.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "screen/saved/saved_condition_file.h"

namespace jogeon {

// A set that another user of this computer has saved.
struct ImportChoice {
    std::filesystem::path file;
    std::string section;  // of the file: the set's number there
};

class SavedQuestions {
public:
    // A new name, trimmed and none of `used`; `start` stands in the box at first.
    virtual std::optional<std::string> AskName(const std::vector<std::string>& used,
                                               const std::string& start) = 0;

    // A set of another user's, from the files in `folder`.
    virtual std::optional<ImportChoice> AskImport(const std::filesystem::path& folder,
                                                  const std::string& currentId) = 0;

    // The sets' places in their new order; none as well when nothing was moved.
    virtual std::optional<std::vector<std::size_t>> AskOrder(const std::vector<SavedSetName>& sets) = 0;

protected:
    ~SavedQuestions() = default;
};

}  // namespace jogeon
