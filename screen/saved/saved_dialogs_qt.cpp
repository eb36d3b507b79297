#include "screen/saved/saved_dialogs_qt.h"

#include "screen/saved/import_dialog.h"
#include "screen/saved/name_dialog.h"
#include "screen/saved/reorder_dialog.h"

namespace jogeon {
namespace {

bool Agreed(host::Questions& questions, const char* name, QDialog* dialog) {
    return questions.Run(name, dialog);
}

}  // namespace

std::optional<std::string> SavedDialogs::AskName(const std::vector<std::string>& used,
                                                 const std::string& start) {
    NameDialog dialog(used, start, questions_, &screen_);
    return Agreed(questions_, "NameDialog", &dialog) ? std::optional(dialog.Name()) : std::nullopt;
}

std::optional<ImportChoice> SavedDialogs::AskImport(const std::filesystem::path& folder,
                                                    const std::string& currentId) {
    ImportDialog dialog(folder, currentId, questions_, &screen_);
    return Agreed(questions_, "ImportDialog", &dialog) ? std::optional(dialog.Choice()) : std::nullopt;
}

std::optional<std::vector<std::size_t>> SavedDialogs::AskOrder(const std::vector<SavedSetName>& sets) {
    ReorderDialog dialog(sets, &screen_);
    if (!Agreed(questions_, "ReorderDialog", &dialog) || !dialog.Changed()) return std::nullopt;
    return dialog.Order();
}

}  // namespace jogeon
