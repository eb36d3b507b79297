// Screen 0150: the pane that everything else hangs on.
//
// It creates the controls and the collaborators, wires events to them, and runs the start-up and shut-down
// orders. What a command does stands with the collaborator that owns the state it changes.
#pragma once

#include <QBrush>
#include <QRect>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "screen/condition/bbox_panel_pane.h"
#include "screen/condition/condition_editor.h"
#include "screen/condition/condition_grid_view.h"
#include "screen/condition/conditions_pane.h"
#include "screen/expression/expression_edit.h"
#include "screen/expression/expression_questions.h"
#include "screen/host/services.h"
#include "screen/host/window_messages_qt.h"
#include "screen/panes/progress_label_widget.h"
#include "screen/panes/tree_picks.h"
#include "screen/results/code_list_button_widget.h"
#include "screen/results/column_choice.h"
#include "screen/results/host_main_window.h"
#include "screen/results/result_controls_widget.h"
#include "screen/results/result_flow.h"
#include "screen/results/result_grid_view.h"
#include "screen/results/result_links.h"
#include "screen/results/result_tabs_widget.h"
#include "screen/results/search_commands.h"
#include "screen/saved/saved_conditions.h"
#include "screen/saved/saved_dialogs_qt.h"
#include "screen/settings/screen_settings.h"
#include "screen/shell/form_windows_qt.h"
#include "screen/shell/screen_form_widget.h"
#include "screen/shell/screen_layout.h"
#include "screen/transactions/request_channel.h"
#include "screen/transactions/result_columns.h"

namespace jogeon {

class CMenuTreeView;
class ScreenSplitter;

class ConditionScreen : public QWidget, public TreePicks, private SavedConditionView {
    Q_OBJECT

public:
    // Uses the host's installed services, which outlive it. `hostWindow` is asked once; 0 for none.
    ConditionScreen(host::WindowHandle hostWindow, QWidget* parent);
    ~ConditionScreen() override;

    // The panes around it, once, before its first update.
    void LinkPanes(ScreenSplitter& splitter, CMenuTreeView& tree);

    // TreePicks
    void OnPickIndex(const CIndexInfo& info, const FieldArray* fields) override;
    void OnPickSaved(std::shared_ptr<CSavedIndexInfo> saved) override;

    // Whether the expression is well formed; if it isn't, the user has been shown where, and has the focus in
    // its box.
    bool CheckExpression(const std::string& text) override;

    // What the module's exported functions ask for.
    void SaveLeftPaneWidth(const std::string& key);
    void RestoreLeftPaneWidth(const std::string& key);
    int ChangeEnvironment(int value);
    void ReadHostColors();
    void FocusResultGrid();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void StartUp();
    void ShutDown();

    // Steps of the start-up.
    void FindHostMainWindow();
    void ReadUserId();
    void TakeMajorId();
    void QueryHost();
    void ReadGridSettings();
    void MakeBackBrush();
    void SetUpControls();
    void BuildConditionGrid();
    void BuildResultGrid();
    void PlacePanel();
    void ReadFileVersion();
    void RequestConditionList();
    void ReadConditionSettings();
    void TakeResultGridRect();

    // Steps of the shut-down.
    void ReleaseSearch();
    void SendClosingMessage();
    void GiveMajorIdBack();
    void DropConditions();
    void DropResults();
    void WriteSettings();

    void PlaceControls();
    void FillScopes();
    void WireCommands();
    void WireReplies();
    void WireLinks();
    void SaveResultSheet();

    // Layouts, settings, columns.
    void WireLayoutCommands();
    void NextLayout();
    void TakeLayoutMode();
    void ToggleExpressionHeight();
    void FitResultGrid();
    void ChangeSettings(int page);
    void ApplyGridSettings();
    void ReloadResultGrid();
    bool SaveResultLayout();

    void OnExpressionChanged();
    void SaveConditionsAsSheet();
    void ToggleLeftPane();
    void ChangeTarget();
    void ClearResultsCommand();
    void ChangeHost(host::WindowHandle mainWindow);
    void RefreshCursor();
    SearchInputs GatherSearchInputs();

    // SavedConditionView
    void ShowName(const std::string& name) override;
    bool BuySelected() const override;
    void SelectBuy(bool buy) override;
    void ShowTarget(const SearchTarget& target) override;
    std::string ExpressionText() const override { return expressionEdit_.ExpressionText(); }
    void EnableSavedCommands(bool enabled) override;
    void ClearResults() override { ClearResultsCommand(); }

    const host::Services services_;
    const host::WindowHandle hostWindow_;
    const host::WindowHandle handle_;
    HostMainWindow hostMainWindow_{host::SendMessage};
    host::WindowHandle splitterWindow_ = 0;
    CMenuTreeView* treeView_ = nullptr;

    ScreenForm form_;
    ExpressionEdit expressionEdit_;
    ExpressionQuestions expressionQuestions_;
    CNVTab resultTabs_;
    CodeListButton codeListButton_;
    ProgressLabel progressBar_;
    ConditionGrid conditionGrid_;
    ResultGrid resultGrid_;
    BBoxPanel panel_;
    FormWindows formWindows_;
    ScreenLayout layout_;
    std::unique_ptr<CIndexInfo> picked_;  // of the tree, while the panel may show it
    QBrush backBrush_;
    QRect resultGridRect_;

    ScreenSettings settings_;
    std::string userId_;
    bool lastDataApplied_ = false;  // the left pane's width has been restored, or must not be
    bool leftPaneClosed_ = false;

    RequestChannel channel_;
    ConditionsPane conditionsPane_;
    ConditionEditor editor_;
    ExpressionCommands expressionCommands_;
    SavedDialogs savedDialogs_;
    SavedConditions saved_;
    ColumnTables columns_;
    ColumnChoice columnChoice_{columns_};
    ResultControlsView resultControls_;
    ResultFlow results_;
    SearchCommands search_;
    ResultLinks resultLinks_;
};

}  // namespace jogeon
