// Where the screen's conditions and results go: the buttons and grid events that lead out of it.
#include "screen/results/realtime_command.h"
#include "screen/results/result_menu_qt.h"
#include "screen/results/result_notes.h"
#include "screen/results/result_sheet_qt.h"
#include "screen/shell/condition_screen_view.h"

namespace jogeon {
namespace {

// Qt's key as the host numbers it; 0 for one that no link waits for.
int HostKey(int key) {
    switch (key) {
        case Qt::Key_Up:
            return kKeyUp;
        case Qt::Key_Down:
            return kKeyDown;
        default:
            return 0;
    }
}

}  // namespace

void ConditionScreen::WireLinks() {
    form_.OnClick(control::kRealTime, [this] {
        RealtimeCommand(GatherSearchInputs(), *services_.links, expressionQuestions_, hostMainWindow_);
    });
    form_.OnClick(control::kChart, [this] { resultLinks_.OpenChart(); });
    form_.OnClick(control::kInterestSave, [this] { resultLinks_.SaveInterest(); });
    connect(&resultGrid_, &ResultGrid::RowClicked, this, [this](int row) { resultLinks_.OnRowClicked(row); });
    connect(&resultGrid_, &ResultGrid::RowDoubleClicked, this,
            [this](int row) { resultLinks_.OnRowDoubleClicked(row, host::HandleOf(&resultGrid_)); });
    connect(&resultGrid_, &ResultGrid::KeyPressed, this,
            [this](int key) { resultLinks_.HandleGridKey(HostKey(key)); });
    connect(&codeListButton_, &CodeListButton::CodeChosen, this,
            [this](const std::string& code) { resultLinks_.ChooseCode(code); });
    GiveMenu(resultGrid_, resultLinks_, [this] { SaveResultSheet(); });
}

// The selected rows if they are several, else all that have come.
void ConditionScreen::SaveResultSheet() {
    const ResultSet* result = results_.Selected();
    if (!result || resultGrid_.GetRowCount() < 2) return;
    services_.sheets->Save(MakeResultSheet(resultGrid_, resultLinks_.ChosenRows()),
                           MakeResultNotes(*result, resultTabs_.TabLabel(resultTabs_.SelectedTab())));
}

}  // namespace jogeon
