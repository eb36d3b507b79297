#include "screen/shell/saved_wiring_qt.h"

namespace jogeon {

void WireSavedCommands(ScreenForm& form, SavedConditions& saved) {
    form.OnClick(control::kNewCondition, [&saved] { saved.NewCondition(); });
    form.OnClick(control::kSave, [&saved] { saved.SaveCommand(); });
    form.OnClick(control::kSaveAs, [&saved] { saved.SaveAsCommand(); });
    form.OnClick(control::kRenameSaved, [&saved] { saved.RenameCommand(); });
    form.OnClick(control::kDeleteSaved, [&saved] { saved.DeleteCommand(); });
    form.OnClick(control::kReorderSaved, [&saved] { saved.ReorderCommand(); });
    form.OnClick(control::kImportSaved, [&saved] { saved.ImportCommand(); });
}

}  // namespace jogeon
