// Layouts, settings and the result grid's columns: what the screen does when the user changes how it looks.
#include <algorithm>

#include "screen/files/data_paths.h"
#include "screen/panes/menu_tree_pane.h"
#include "screen/results/grid_layout_files.h"
#include "screen/shell/condition_screen_view.h"

namespace jogeon {

void ConditionScreen::WireLayoutCommands() {
    form_.OnClick(control::kExpandMode, [this] { NextLayout(); });
    form_.OnClick(control::kEnlargeExpression, [this] { ToggleExpressionHeight(); });
    form_.OnClick(control::kSettings, [this] { ChangeSettings(host::SettingsDialog::kFirstPage); });
    connect(&resultGrid_, &ResultGrid::ColumnSettingsAsked, this,
            [this] { ChangeSettings(host::SettingsDialog::kColumnsPage); });
    connect(&resultGrid_, &ResultGrid::ColumnSized, this,
            [this](int column, int width) { columnChoice_.SetWidth(column, width); });
}

// --- layouts

// The file is that of the user who is logged on at this moment.
void ConditionScreen::NextLayout() {
    layout_.Next();
    TakeLayoutMode();
    SettingsFile(*services_.links, GetUserId(*services_.links)).Write(SettingGroup::Layout, settings_);
}

void ConditionScreen::TakeLayoutMode() {
    settings_.expandMode = layout_.Mode();
    FitResultGrid();
}

void ConditionScreen::ToggleExpressionHeight() {
    layout_.ToggleExpression();
    expressionEdit_.setFocus();
}

// The result grid follows the view, but never beyond its first size.
void ConditionScreen::FitResultGrid() {
    if (resultGridRect_.width() <= 0 || width() <= 0 || height() <= 0) return;
    QRect rect = resultGrid_.geometry();
    rect.setRight(std::min(width() - 1, resultGridRect_.right()));
    resultGrid_.setGeometry(rect);
}

// --- settings

void ConditionScreen::ChangeSettings(int page) {
    const int changed = services_.settings->Run(handle_, columnChoice_, page);
    if (changed == 0) return;
    const SettingsFile file(*services_.links, userId_);
    file.Read(SettingGroup::Conditions, settings_);
    treeView_->ShowNumbers(settings_.showSequence != 0);
    file.Read(SettingGroup::Grid, settings_);
    if (changed & host::SettingsDialog::kReloadGrid) ReloadResultGrid();
    ApplyGridSettings();
}

void ConditionScreen::ApplyGridSettings() {
    resultGrid_.SetColumnSizing(settings_.changeSize);
    resultGrid_.SetGridLines(settings_.lineBorder ? 0 : 2);
    resultGrid_.SetRowColors(settings_.oddColor, settings_.evenColor);
    resultGrid_.Redraw();
}

// --- the result grid's columns

void ConditionScreen::BuildResultGrid() {
    columnChoice_.TakeStored(LoadGridLayout(*services_.links, userId_));
    resultGrid_.ApplyLayout(columnChoice_.Layout());
    columns_ = LoadColumnTable(GetDataFilePath(*services_.links, kSystemFolder, "XcsFid.dat"));
    results_.ApplyLayout();
    ApplyGridSettings();
}

// The columns as chosen go to the user's file, and what it says then is shown. Where it can't be written,
// the choice holds until the end of the session.
void ConditionScreen::ReloadResultGrid() {
    resultGrid_.EmptyGrid();
    if (SaveResultLayout()) columnChoice_.TakeStored(LoadGridLayout(*services_.links, userId_));
    resultGrid_.ApplyLayout(columnChoice_.Layout());
    results_.ReloadLayout();
    editor_.ResetSequence();
}

bool ConditionScreen::SaveResultLayout() {
    return WriteGridLayout(UserLayoutPath(*services_.links, userId_), columnChoice_.Layout());
}

}  // namespace jogeon
