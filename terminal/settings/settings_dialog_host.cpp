#include "terminal/settings/settings_dialog_host.h"

#include <algorithm>

#include "screen/files/data_paths.h"
#include "screen/host/window_messages_qt.h"
#include "screen/results/column_choice.h"
#include "screen/results/grid_layout_files.h"
#include "terminal/settings/interest_settings.h"

namespace jogeon::terminal {
namespace {

bool Offers(const std::vector<host::GridColumnChoice>& columns, const std::string& fid) {
    return std::ranges::any_of(columns, [&](const auto& column) { return column.fid == fid; });
}

}  // namespace

int SettingsDialogHost::Run(host::WindowHandle view, host::GridColumns& grid, int page) {
    const SettingsChoice start = Start(view, grid);
    QWidget* screen = host::FindWindow(view);
    terminal::SettingsDialog dialog(start, Defaults(start.columns), questions_,
                                    screen ? screen->window() : nullptr);
    dialog.ShowPage(page);
    // A number that the dialog has no place for isn't a change of the user's.
    const SettingsChoice before = dialog.Choice();
    if (!questions_.Run("SettingsDialog", &dialog)) return 0;
    return Store(view, grid, before, dialog.Choice());
}

SettingsChoice SettingsDialogHost::Start(host::WindowHandle view, const host::GridColumns& grid) const {
    SettingsChoice start;
    const SettingsFile file(links_, GetUserId(links_));
    file.Read(SettingGroup::Grid, start.settings);
    file.Read(SettingGroup::Conditions, start.settings);
    AskInterestSettings(view, start.settings);
    start.columns = grid.Choices();
    return start;
}

// The columns as the template has them; what it doesn't know stays behind them.
SettingsChoice SettingsDialogHost::Defaults(const std::vector<host::GridColumnChoice>& offered) const {
    SettingsChoice defaults;
    for (const auto& column : ChoicesOf(ReadGridLayout(TemplateLayoutPath(links_)))) {
        if (Offers(offered, column.fid)) defaults.columns.push_back(column);
    }
    for (const auto& column : offered) {
        if (!Offers(defaults.columns, column.fid)) defaults.columns.push_back(column);
    }
    return defaults;
}

int SettingsDialogHost::Store(host::WindowHandle view, host::GridColumns& grid, const SettingsChoice& before,
                              const SettingsChoice& after) const {
    int changed = 0;
    if (after.settings != before.settings) {
        changed |= kSettingsChanged;
        const SettingsFile file(links_, GetUserId(links_));
        file.WriteChanges(SettingGroup::Grid, before.settings, after.settings);
        file.WriteChanges(SettingGroup::Conditions, before.settings, after.settings);
        TellInterestSettings(view, after.settings);
    }
    if (after.columns != before.columns) {
        changed |= kReloadGrid;
        grid.Choose(after.columns);
    }
    return changed;
}

}  // namespace jogeon::terminal
